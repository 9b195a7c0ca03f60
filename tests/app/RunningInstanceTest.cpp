#include "app/RunningInstance.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace brimlight::test {

using namespace std::chrono_literals;
using Outcome = RunningInstance::Outcome;

namespace {

/// Gives a variable of the environment back what it was.
class Variable
{
public:
    Variable(const char *name, const QByteArray &value)
        : m_name(name)
        , m_before(qgetenv(name))
        , m_was(qEnvironmentVariableIsSet(name))
    {
        qputenv(name, value);
    }
    ~Variable()
    {
        if (m_was)
            qputenv(m_name, m_before);
        else
            qunsetenv(m_name);
    }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;

private:
    const char *m_name;
    QByteArray m_before;
    bool m_was;
};

class RunningInstanceTest : public testing::Test
{
protected:
    static constexpr auto patient = 5s;
    static constexpr auto impatient = 100ms;

    std::unique_ptr<RunningInstance> instance(const QString &name = QStringLiteral("display"))
    {
        return std::make_unique<RunningInstance>(folder.path(), name);
    }

    /// Another start, while the main loop runs.
    Outcome another(std::chrono::milliseconds patience)
    {
        std::optional<Outcome> outcome;
        std::atomic<bool> done = false;
        std::thread start([&] {
            outcome = instance()->claim(patience);
            done = true;
        });
        while (!done)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        start.join();
        return *outcome;
    }

    /// Another start has connected, and is not accepted yet.
    bool someoneWaits() const
    {
        QFile sockets(QStringLiteral("/proc/net/unix"));
        EXPECT_TRUE(sockets.open(QIODevice::ReadOnly));
        // One that listens, and one for each that waits.
        return sockets.readAll().count(folder.path().toUtf8()) > 1;
    }
    void waitForSomeone() const
    {
        const QDeadlineTimer patience(10s);
        while (!someoneWaits() && !patience.hasExpired())
            std::this_thread::yield();
        ASSERT_TRUE(someoneWaits());
    }

    const QTemporaryDir folder;
    int opened = 0;
};

} // namespace

TEST_F(RunningInstanceTest, TheFirstRunsAndThoseThatFollowOpenIt)
{
    const auto first = instance();
    ASSERT_EQ(first->claim(impatient), Outcome::first);
    first->answer([this] { ++opened; });
    EXPECT_EQ(another(patient), Outcome::handedOver);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(another(patient), Outcome::handedOver);
    EXPECT_EQ(opened, 2);
}

TEST_F(RunningInstanceTest, OneThatCameBeforeTheAnswerIsAnsweredToo)
{
    const auto first = instance();
    ASSERT_EQ(first->claim(impatient), Outcome::first);
    std::optional<Outcome> outcome;
    std::thread second([&] { outcome = instance()->claim(patient); });
    waitForSomeone();
    first->answer([this] { ++opened; });
    while (opened == 0)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    second.join();
    EXPECT_EQ(outcome, Outcome::handedOver);
}

TEST_F(RunningInstanceTest, OneThatHangsIsNotWaitedForLongerThanThat)
{
    const auto first = instance();
    ASSERT_EQ(first->claim(impatient), Outcome::first);
    EXPECT_EQ(instance()->claim(impatient), Outcome::unresponsive);
}

TEST_F(RunningInstanceTest, WhenTheFirstEndsTheNextRuns)
{
    auto first = instance();
    ASSERT_EQ(first->claim(impatient), Outcome::first);
    first.reset();
    EXPECT_EQ(instance()->claim(impatient), Outcome::first);
}

TEST_F(RunningInstanceTest, OneThatWaitsTakesOverWhenTheFirstEndsUnanswered)
{
    auto first = instance();
    ASSERT_EQ(first->claim(impatient), Outcome::first);
    std::optional<Outcome> outcome;
    std::thread second([&] { outcome = instance()->claim(patient); });
    waitForSomeone();
    first.reset();
    second.join();
    EXPECT_EQ(outcome, Outcome::first);
}

TEST_F(RunningInstanceTest, WhatACrashLeavesIsTakenOver)
{
    const pid_t child = ::fork();
    if (child == 0) {
        RunningInstance crashing(folder.path(), QStringLiteral("display"));
        ::_exit(crashing.claim(impatient) == Outcome::first ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    ASSERT_EQ(status, 0);
    const QStringList left = QDir(folder.path()).entryList(QDir::Files | QDir::System);
    EXPECT_EQ(left, (QStringList{QStringLiteral("display.lock"), QStringLiteral("display.socket")}));

    const auto first = instance();
    ASSERT_EQ(first->claim(impatient), Outcome::first);
    first->answer([this] { ++opened; });
    EXPECT_EQ(another(patient), Outcome::handedOver);
}

TEST_F(RunningInstanceTest, OfManyThatStartAtTheSameMomentOneRuns)
{
    for (int round = 0; round < 20; ++round) {
        constexpr int count = 6;
        std::atomic<int> running = 0;
        std::atomic<int> handedOver = 0;
        std::atomic<int> done = 0;
        std::vector<std::unique_ptr<RunningInstance>> instances(count);
        std::atomic<RunningInstance *> winner = nullptr;
        std::vector<std::thread> starts;
        for (auto &one : instances) {
            one = instance();
            starts.emplace_back([&, start = one.get()] {
                const Outcome outcome = start->claim(patient);
                running += outcome == Outcome::first;
                handedOver += outcome == Outcome::handedOver;
                if (outcome == Outcome::first)
                    winner = start;
                ++done;
            });
        }
        bool answers = false;
        while (done < count) {
            if (!answers && winner) {
                winner.load()->answer([this] { ++opened; });
                answers = true;
            }
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        }
        for (std::thread &start : starts)
            start.join();
        EXPECT_EQ(running, 1);
        EXPECT_EQ(handedOver, count - 1);
    }
}

TEST_F(RunningInstanceTest, OtherDisplaysHaveTheirOwn)
{
    const auto first = instance();
    ASSERT_EQ(first->claim(impatient), Outcome::first);
    EXPECT_EQ(instance(QStringLiteral("other"))->claim(impatient), Outcome::first);
    QString plain;
    {
        const Variable display("DISPLAY", ":7");
        plain = instanceName();
    }
    const Variable display("DISPLAY", ":8");
    EXPECT_NE(instanceName(), plain);
    const Variable wayland("WAYLAND_DISPLAY", "wayland-1");
    const QString same = instanceName();
    const Variable otherWayland("WAYLAND_DISPLAY", "wayland-2");
    EXPECT_EQ(instanceName(), same) << "it is the X display that the panel is on";
}

TEST_F(RunningInstanceTest, WhereNoLockCanBeHadEveryOneRuns)
{
    const QString missing = folder.filePath(QStringLiteral("missing"));
    RunningInstance first(missing, QStringLiteral("display"));
    EXPECT_EQ(first.claim(impatient), Outcome::first);
    first.answer([] {});
    EXPECT_EQ(RunningInstance(missing, QStringLiteral("display")).claim(impatient), Outcome::first);
}

TEST_F(RunningInstanceTest, FolderIsTheSessionsOrElseAPrivateTemporaryOne)
{
    const Variable temporary("TMPDIR", folder.path().toLocal8Bit());
    const QString session = folder.filePath(QStringLiteral("session"));
    ASSERT_TRUE(QDir().mkdir(session));
    {
        const Variable runtime("XDG_RUNTIME_DIR", session.toLocal8Bit());
        EXPECT_EQ(instanceFolder(), session + QStringLiteral("/brimlight"));
    }
    const QString own = folder.filePath(QStringLiteral("brimlight-%1").arg(::geteuid()));
    for (const QByteArray &unusable : {QByteArray(), QByteArray("relative"), QByteArray("/nonexistent"),
                                       QByteArray(session.toLocal8Bit() + '/' + QByteArray(100, 'x'))}) {
        const Variable runtime("XDG_RUNTIME_DIR", unusable);
        EXPECT_EQ(instanceFolder(), own) << unusable.toStdString();
    }
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(own).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
}

TEST_F(RunningInstanceTest, AFolderThatOthersCanWriteToIsNotUsed)
{
    const Variable temporary("TMPDIR", folder.path().toLocal8Bit());
    const Variable runtime("XDG_RUNTIME_DIR", "");
    const QByteArray own =
        QFile::encodeName(folder.filePath(QStringLiteral("brimlight-%1").arg(::geteuid())));
    ASSERT_EQ(::mkdir(own.constData(), 0777), 0);
    ASSERT_EQ(::chmod(own.constData(), 0777), 0);
    EXPECT_EQ(instanceFolder(), std::nullopt);
    ASSERT_EQ(::rmdir(own.constData()), 0);
    const QTemporaryDir elsewhere;
    ASSERT_EQ(::symlink(QFile::encodeName(elsewhere.path()).constData(), own.constData()), 0);
    EXPECT_EQ(instanceFolder(), std::nullopt) << "nor is one behind a link";
}

} // namespace brimlight::test
