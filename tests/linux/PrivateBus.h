#pragma once

#include <QDBusConnection>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <functional>

namespace brimlight::test {

/// Lets the loop run until the condition holds; false when that takes too long.
inline bool waitFor(const std::function<bool()> &condition)
{
    QEventLoop loop;
    QTimer guard;
    bool timedOut = false;
    QObject::connect(&guard, &QTimer::timeout, [&] { timedOut = true; });
    guard.start(std::chrono::seconds(5));
    while (!condition() && !timedOut)
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

/// A bus of its own that starts no services.
class PrivateBus
{
public:
    PrivateBus()
    {
        QFile configuration(m_folder.filePath(QStringLiteral("bus.conf")));
        if (!configuration.open(QIODevice::WriteOnly))
            return;
        configuration.write("<busconfig><type>session</type><listen>unix:tmpdir=" + m_folder.path().toUtf8() +
                            "</listen><policy context=\"default\"><allow send_destination=\"*\"/>"
                            "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>");
        configuration.close();
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                        QStringLiteral("--print-address"),
                        QStringLiteral("--config-file=%1").arg(configuration.fileName())});
        while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead(5000)) {
        }
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    ~PrivateBus()
    {
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

    const QString &address() const { return m_address; }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
};

/// A connection of its own. It is never closed: Qt lets its thread fall over connections that are closed
/// while another thread opens one.
inline QDBusConnection newConnection(const QString &address)
{
    static std::atomic<int> count = 0;
    return QDBusConnection::connectToBus(address, QString::number(++count));
}

} // namespace brimlight::test
