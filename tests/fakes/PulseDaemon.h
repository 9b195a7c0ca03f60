#pragma once

#include <QProcess>

#include <csignal>
#include <stdexcept>
#include <sys/prctl.h>

namespace brimlight::test {

/// A real audio server of its own, with devices that nobody hears. Ends when its owner does, and when the
/// test dies as well.
class PulseDaemon
{
public:
    /// Its socket and files lie where the environment says, which nobody else uses.
    explicit PulseDaemon(const QProcessEnvironment &environment)
        : m_environment(environment)
    {
    }
    ~PulseDaemon() { end(); }
    PulseDaemon(const PulseDaemon &) = delete;
    PulseDaemon &operator=(const PulseDaemon &) = delete;

    /// With null sinks of these names; the first is the default. Returns when it answers.
    void start(const QStringList &sinks)
    {
        QStringList arguments{QStringLiteral("-n"),
                              QStringLiteral("--daemonize=no"),
                              QStringLiteral("--use-pid-file=no"),
                              QStringLiteral("--exit-idle-time=-1"),
                              QStringLiteral("--realtime=no"),
                              QStringLiteral("--high-priority=no"),
                              QStringLiteral("--load=module-native-protocol-unix")};
        for (const QString &sink : sinks)
            arguments.append(QStringLiteral("--load=module-null-sink sink_name=") + sink);
        m_process.setProcessEnvironment(m_environment);
        m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
        m_process.start(QStringLiteral("pulseaudio"), arguments);
        if (!m_process.waitForStarted())
            throw std::runtime_error("pulseaudio cannot be started");
        const QString first = sinks.value(0);
        for (int attempt = 0; attempt < 200; ++attempt) {
            if (run({QStringLiteral("info")}) && (first.isEmpty() || select(first)))
                return;
            m_process.waitForFinished(50);
        }
        throw std::runtime_error("pulseaudio does not answer: " +
                                 m_process.readAllStandardError().toStdString());
    }
    void end()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.terminate();
        if (!m_process.waitForFinished(2000))
            kill();
    }
    /// Leaves its socket behind.
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// Makes this sink the default.
    bool select(const QString &sink) const { return run({QStringLiteral("set-default-sink"), sink}); }
    bool setVolume(const QString &sink, const QString &volume) const
    {
        return run({QStringLiteral("set-sink-volume"), sink, volume});
    }
    bool setMute(const QString &sink, bool mute) const
    {
        return run({QStringLiteral("set-sink-mute"), sink, mute ? QStringLiteral("1") : QStringLiteral("0")});
    }
    /// The words of pactl; false when it fails.
    bool run(const QStringList &words, QString *said = nullptr) const
    {
        QProcess pactl;
        pactl.setProcessEnvironment(m_environment);
        pactl.start(QStringLiteral("pactl"), words);
        const bool ended = pactl.waitForFinished(10000);
        if (said)
            *said = QString::fromUtf8(pactl.readAllStandardOutput()).trimmed();
        return ended && pactl.exitStatus() == QProcess::NormalExit && pactl.exitCode() == 0;
    }

private:
    QProcessEnvironment m_environment;
    QProcess m_process;
};

} // namespace brimlight::test
