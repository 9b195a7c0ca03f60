#include "ChildProcess.h"

#include <csignal>
#include <stdexcept>
#include <sys/prctl.h>

namespace brimlight::onscreen {

ChildProcess::ChildProcess(const QString &program, const QStringList &arguments,
                           const QProcessEnvironment &environment)
{
    setProcessEnvironment(environment);
    setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    start(program, arguments);
    if (!waitForStarted())
        throw std::runtime_error("cannot start " + program.toStdString());
}

ChildProcess::~ChildProcess()
{
    end();
}

void ChildProcess::end()
{
    if (state() == NotRunning)
        return;
    // Not killed at once: an X server that is killed leaves its lock file behind.
    terminate();
    if (!waitForFinished(2000)) {
        kill();
        waitForFinished();
    }
}

} // namespace brimlight::onscreen
