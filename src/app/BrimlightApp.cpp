#include "app/BrimlightApp.h"

#include "app/AppDelegate.h"
#include "app/RunningInstance.h"
#include "app/WidgetRenderHarness.h"
#include "platform/linux/process/JournalLog.h"
#include "platform/linux/x11/DisplayServer.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <cstdio>
#include <cstdlib>

namespace brimlight::BrimlightApp {
namespace {

/// Warnings of the libraries belong into the log: the program prints nothing by itself. Debug output that
/// somebody asked Qt for goes to the console, and with the debugging switch on the warnings do as well.
void logMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    static const bool debugging = DebugFlags::fromEnvironment().enabled;
    if (debugging || type == QtDebugMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
    if (type == QtDebugMsg)
        return;
    const LogLevel level = type == QtInfoMsg ? LogLevel::info : LogLevel::error;
    JournalLog().write(level, QStringLiteral("App"), message);
}

/// The exit status when another one runs on this display; else this one is the `instance` from now on.
std::optional<int> leaveToRunningInstance(std::optional<RunningInstance> &instance)
{
    // Longer than a start takes on a slow machine.
    constexpr std::chrono::seconds patience{5};
    const auto folder = instanceFolder();
    if (!folder)
        return std::nullopt;
    instance.emplace(*folder, instanceName());
    switch (instance->claim(patience)) {
    case RunningInstance::Outcome::first:
        return std::nullopt;
    case RunningInstance::Outcome::handedOver:
        return 0;
    case RunningInstance::Outcome::unresponsive:
        break;
    }
    std::fprintf(stderr, "brimlight: another instance is running and does not respond\n");
    return 1;
}

} // namespace

int run(int argc, char **argv)
{
    if (const auto status = WidgetRenderHarness::runIfRequested(argc, argv))
        return *status;
    if (const auto reason = prepareDisplay()) {
        std::fprintf(stderr, "brimlight: %s\n", qPrintable(*reason));
        return 1;
    }
    std::optional<RunningInstance> instance;
    if (const auto status = leaveToRunningInstance(instance))
        return *status;
    qInstallMessageHandler(logMessage);
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("brimlight"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    int status = 0;
    {
        AppDelegate delegate;
        delegate.applicationDidFinishLaunching();
        if (instance)
            instance->answer([&delegate] { delegate.notch().open(); });
        status = QGuiApplication::exec();
    }
    // The thread of the bus may be at work, even wait for its daemon, and looks at the application object, so
    // that is not taken from under it. Every file has been written: the end of the platform waits for that.
    std::fflush(nullptr);
    std::_Exit(status);
}

} // namespace brimlight::BrimlightApp
