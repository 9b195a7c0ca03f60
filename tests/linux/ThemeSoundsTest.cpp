#include "platform/linux/audio/ThemeSounds.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace brimlight::test {
namespace {

/// An audio server of its own that plays into nothing.
class ThemeSoundsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_folder.path());
        environment.insert(QStringLiteral("PULSE_RUNTIME_PATH"), m_folder.path());
        m_daemon.setProcessEnvironment(environment);
        m_daemon.start(
            QStringLiteral("pulseaudio"),
            {QStringLiteral("-n"), QStringLiteral("--daemonize=no"), QStringLiteral("--exit-idle-time=-1"),
             QStringLiteral("--use-pid-file=no"), QStringLiteral("--load=module-null-sink"),
             QStringLiteral("--load=module-native-protocol-unix auth-anonymous=1 socket=") + socket()});
        ASSERT_TRUE(m_daemon.waitForStarted());
        qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(socket()));
        ASSERT_TRUE(comesTrue([this] { return QFile::exists(socket()); })) << m_daemon.readAll().constData();
    }
    void TearDown() override
    {
        qunsetenv("PULSE_SERVER");
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

    /// Asks until it is so; false when that takes too long.
    static bool comesTrue(const std::function<bool()> &condition)
    {
        constexpr int patience = 5000;
        QElapsedTimer time;
        time.start();
        while (!condition()) {
            if (time.hasExpired(patience))
                return false;
        }
        return true;
    }
    /// What the server plays now.
    static QByteArray playing()
    {
        QProcess list;
        list.start(QStringLiteral("pactl"), {QStringLiteral("list"), QStringLiteral("sink-inputs")});
        list.waitForFinished();
        return list.readAll();
    }

    ThemeSounds sounds;

private:
    QString socket() const { return m_folder.filePath(QStringLiteral("native")); }

    QTemporaryDir m_folder;
    QProcess m_daemon;
};

} // namespace

TEST_F(ThemeSoundsTest, PlaysTheSoundOfTheThemeForAName)
{
    sounds.play(QStringLiteral("No such sound"));
    sounds.play(QStringLiteral("Trash"));
    QByteArray seen;
    EXPECT_TRUE(comesTrue([&] {
        seen = playing();
        return seen.contains("event.id = \"trash-empty\"");
    })) << seen.constData();
}

} // namespace brimlight::test
