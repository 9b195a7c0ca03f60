#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QTemporaryDir>
#include <QThreadPool>

namespace {

/// A warning of Qt means that something is wrong, even where no expectation sees it.
void failOnWarning(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtDebugMsg || type == QtInfoMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
    else
        ADD_FAILURE() << "Qt: " << qPrintable(message);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    // Qt warns where a login session would have set this.
    const QTemporaryDir runtime;
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(failOnWarning);
    const QGuiApplication application(argc, argv);
    const int status = RUN_ALL_TESTS();
    // A bus that is still being opened posts to the application object.
    QThreadPool::globalInstance()->waitForDone();
    return status;
}
