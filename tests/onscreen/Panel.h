#pragma once

#include "ChildProcess.h"
#include "Waiting.h"

#include <QRegularExpression>

#include <csignal>
#include <optional>

namespace brimlight::onscreen {

/// The running program and what it says.
class Panel
{
public:
    Panel(const QString &program, const QProcessEnvironment &environment);

    /// The first line that matches, looked for behind the one found last. Absent when none comes in time.
    std::optional<QRegularExpressionMatch> waitForLine(const QString &pattern, milliseconds limit = patience);
    /// True when no such line comes.
    bool keepsSilentAbout(const QString &pattern, milliseconds duration = bounded);

    const QStringList &lines();
    /// Warnings, QML errors and whatever else is no trace line.
    QStringList unexpectedLines();

    void raiseSignal(int signal) const { ::kill(static_cast<pid_t>(m_process.processId()), signal); }
    bool isRunning();
    /// False when it goes on.
    bool waitForExit(milliseconds limit = patience);
    const QProcess &process() const { return m_process; }
    /// As a person's session does at its end. Everything said until then has been read afterwards.
    void end();

private:
    void read();

    ChildProcess m_process;
    QByteArray m_unfinished;
    QStringList m_lines;
    qsizetype m_next = 0;
};

} // namespace brimlight::onscreen
