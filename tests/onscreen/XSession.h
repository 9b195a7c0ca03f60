#pragma once

#include "ChildProcess.h"
#include "Desktop.h"
#include "XClient.h"

#include <QTemporaryDir>

namespace brimlight::onscreen {

/// An X server of its own on a free display, what the desktop consists of, and a home folder. Nothing of it
/// outlives the test, nor does it reach the desktop of whoever runs the test.
class XSession
{
public:
    /// Returns when the window manager (and compositor) are at work; throws when they are not.
    explicit XSession(const Desktop &desktop, QSize size = {1512, 982});

    /// Where a desktop's touchpad is to be moved.
    QString touchpadSocket() const { return m_home.filePath(QStringLiteral("touchpad")); }
    const QByteArray &display() const { return m_display; }
    XClient &x() { return *m_x; }
    /// For programs that are to run in this session.
    const QProcessEnvironment &environment() const { return m_environment; }
    void setVariable(const char *name, const char *value);
    QString configFile(const QString &name) const;
    /// Makes the folders that are missing.
    void writeConfigFile(const QString &name, const QByteArray &content) const;

    void startCompositor();
    void stopCompositor();

private:
    void makeHome();
    void startServer(const Desktop &desktop, QSize size);
    /// A server with input drivers, which draws into memory.
    QStringList serverWithTouchpad(QSize size) const;
    void startWindowManager(const QString &name);

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QByteArray m_display;
    std::unique_ptr<ChildProcess> m_server;
    std::unique_ptr<XClient> m_x;
    std::unique_ptr<ChildProcess> m_windowManager;
    std::unique_ptr<ChildProcess> m_compositor;
};

} // namespace brimlight::onscreen
