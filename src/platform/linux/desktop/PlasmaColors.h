#pragma once

#include "platform/Obstacle.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <mutex>
#include <optional>

namespace brimlight {

/// The colour scheme of a Plasma desktop: read from its configuration and changed by the desktop's own tools,
/// since only they tell all running programs. Everything here waits for files or for a tool, so not on the
/// main thread.
class PlasmaColors
{
public:
    /// Where the desktop keeps things, each list in the order of precedence.
    struct Places
    {
        /// With "kdeglobals" in them.
        QStringList configFolders;
        /// With "color-schemes" in them.
        QStringList dataFolders;
        QStringList programFolders;
    };

    /// Null where the desktop is not Plasma.
    static std::shared_ptr<PlasmaColors>
    ofDesktop(const QString &desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP"));
    explicit PlasmaColors(Places places);

    /// Turns the scheme round between light and dark and gives whether it is dark now; absent when no tool
    /// did it. A scheme of the user's own is come back to as long as the program runs; else the other half of
    /// its pair is taken, or that of the desktop's own.
    std::optional<bool> flip();
    std::optional<Obstacle> obstacle() const;

private:
    struct Scheme
    {
        /// Empty when the user has chosen none.
        QString name;
        bool isDark = false;
    };

    Scheme current() const;
    QByteArray schemeFile(const QString &name) const;
    QString program(const QString &name) const;
    bool apply(const QString &scheme) const;
    bool applyLook(bool dark) const;

    Places m_places;
    /// Two presses in a row are two turns.
    std::mutex m_mutex;
    QString m_lastLight;
    QString m_lastDark;
};

/// The value of a key in a file of the desktop's configuration; absent where there is none.
std::optional<QByteArray> plasmaSetting(const QByteArray &file, const QByteArray &group,
                                        const QByteArray &key);

/// Whether the windows of a scheme are dark; absent when it does not tell their colour.
std::optional<bool> hasDarkWindows(const QByteArray &scheme);

/// What the other half of a pair is called: "BreezeLight" for "BreezeDark". Empty for a name that tells
/// nothing.
QString otherHalf(const QString &scheme);

} // namespace brimlight
