#pragma once

#include <QProcess>

namespace brimlight::onscreen {

/// A program that ends when its owner does, and when the test dies as well.
class ChildProcess : public QProcess
{
public:
    /// Throws when the program cannot be started.
    ChildProcess(const QString &program, const QStringList &arguments,
                 const QProcessEnvironment &environment);
    ~ChildProcess() override;

    /// Asks the program to end and, when it does not, makes it.
    void end();
};

} // namespace brimlight::onscreen
