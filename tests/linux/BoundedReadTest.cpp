#include "platform/linux/process/BoundedRead.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <future>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brimlight::test {

using namespace std::chrono_literals;

namespace {

/// For answers that come: a busy machine may take its time.
constexpr auto ample = 10s;
/// For answers some of which never come, so that it is waited for in full.
constexpr auto brief = 250ms;
constexpr auto noRest = 0ms;

class BoundedReadTest : public testing::Test
{
protected:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QString write(const char *name, const QByteArray &content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    /// A file whose reading blocks until `release`.
    QString makePipe(const char *name) const
    {
        EXPECT_EQ(mkfifo(QFile::encodeName(path(name)).constData(), S_IRUSR | S_IWUSR), 0);
        return path(name);
    }

    /// Lets the reader of a pipe go on; it finds `content`.
    static void release(const QString &pipe, const QByteArray &content = {})
    {
        const int descriptor = ::open(QFile::encodeName(pipe).constData(), O_WRONLY | O_CLOEXEC);
        ASSERT_GE(descriptor, 0);
        EXPECT_EQ(::write(descriptor, content.constData(), content.size()), content.size());
        ::close(descriptor);
    }

    /// Until all that was late has returned, or two seconds are over.
    static void waitForLate(const BoundedRead &reader)
    {
        const auto end = std::chrono::steady_clock::now() + 2s;
        while (reader.lateCount() > 0 && std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
        EXPECT_EQ(reader.lateCount(), 0);
    }

private:
    QTemporaryDir m_folder;
};

/// A body that is held up until the test lets it go or is over.
class Gate
{
public:
    ~Gate() { open(); }
    void open()
    {
        if (!std::exchange(m_isOpen, true))
            m_promise.set_value();
    }
    std::function<std::optional<int>()> body(int value) const
    {
        return [future = m_future, value]() -> std::optional<int> {
            future.wait();
            return value;
        };
    }

private:
    bool m_isOpen = false;
    std::promise<void> m_promise;
    std::shared_future<void> m_future = m_promise.get_future().share();
};

std::optional<int> seven()
{
    return 7;
}

} // namespace

TEST_F(BoundedReadTest, GivesTheWholeFile)
{
    BoundedRead reader(ample);
    const QByteArray large(100'000, 'x');
    EXPECT_EQ(reader.file(write("small", "42\n")), QByteArray("42\n"));
    EXPECT_EQ(reader.file(write("large", large)), large);
    EXPECT_EQ(reader.file(write("empty", "")), QByteArray(""));
    EXPECT_EQ(smallFile(path("large"), 10), large.first(10));
}

TEST_F(BoundedReadTest, WhatCannotBeReadIsAbsent)
{
    BoundedRead reader(ample);
    EXPECT_FALSE(reader.file(path("missing")));
    EXPECT_FALSE(reader.file(path("."))) << "reading a folder fails after opening it";
}

TEST_F(BoundedReadTest, FindsAFileThatCameBack)
{
    BoundedRead reader(ample);
    EXPECT_FALSE(reader.file(path("battery")));
    write("battery", "1");
    EXPECT_EQ(reader.file(path("battery")), QByteArray("1"));
    QFile::remove(path("battery"));
    EXPECT_FALSE(reader.file(path("battery")));
}

TEST_F(BoundedReadTest, CallGivesWhatTheBodyReturns)
{
    BoundedRead reader(ample);
    EXPECT_EQ(reader.call<int>(QStringLiteral("a"), &seven), 7);
    EXPECT_EQ(reader.call<QString>(QStringLiteral("b"), [] { return std::optional(QStringLiteral("text")); }),
              QStringLiteral("text"));
    EXPECT_FALSE(reader.call<int>(QStringLiteral("c"), [] { return std::optional<int>(); }));
}

TEST_F(BoundedReadTest, AFileThatBlocksIsAbsentAndTheOthersGoOn)
{
    BoundedRead reader(brief);
    const QString pipe = makePipe("pipe");
    const QString good = write("good", "1");
    EXPECT_FALSE(reader.file(pipe));
    EXPECT_EQ(reader.lateCount(), 1);
    EXPECT_EQ(reader.file(good), QByteArray("1"));
    release(pipe);
    waitForLate(reader);
}

TEST_F(BoundedReadTest, WhatDecidesForLongMayTakeLonger)
{
    BoundedRead reader(brief);
    const QString pipe = makePipe("label");
    const auto writer = std::async(std::launch::async, [&] {
        // Two others are given up in the meantime.
        BoundedRead others(brief);
        for (const char *name : {"one", "other"})
            EXPECT_FALSE(others.file(makePipe(name)));
        release(pipe, "Tdie");
        for (const char *name : {"one", "other"})
            release(path(name));
        waitForLate(others);
    });
    EXPECT_EQ(reader.lastingFile(pipe), QByteArray("Tdie"));
}

TEST_F(BoundedReadTest, AStuckKeyIsNotAskedAgain)
{
    BoundedRead reader;
    Gate gate;
    const auto key = QStringLiteral("stuck");
    EXPECT_FALSE(reader.call<int>(key, gate.body(1)));
    bool asked = false;
    for (int i = 0; i < 100; ++i) {
        EXPECT_FALSE(reader.call<int>(key, [&asked] {
            asked = true;
            return seven();
        }));
    }
    EXPECT_FALSE(asked);
    EXPECT_EQ(reader.lateCount(), 1);
}

TEST_F(BoundedReadTest, AKeyAnswersAgainAfterItsCallHasReturned)
{
    BoundedRead reader(brief, noRest);
    const QString pipe = makePipe("pipe");
    EXPECT_FALSE(reader.file(pipe));
    release(pipe, "late");
    waitForLate(reader);
    QFile::remove(pipe);
    write("pipe", "fresh");
    EXPECT_EQ(reader.file(pipe), QByteArray("fresh"));
}

TEST_F(BoundedReadTest, ASlowKeyRestsAfterItsCallHasReturned)
{
    BoundedRead reader(brief, 1h);
    Gate gate;
    const auto key = QStringLiteral("slow");
    EXPECT_FALSE(reader.call<int>(key, gate.body(1)));
    gate.open();
    waitForLate(reader);
    EXPECT_FALSE(reader.call<int>(key, &seven));
    EXPECT_EQ(reader.call<int>(QStringLiteral("other"), &seven), 7);
}

TEST_F(BoundedReadTest, NoMoreThanAFewWorkersAreHeldUp)
{
    BoundedRead reader(1ms, noRest);
    Gate gate;
    // A worker that is slow to start takes no call, so the count says when it is enough.
    for (int i = 0; reader.lateCount() < BoundedRead::mostLate; ++i)
        EXPECT_FALSE(reader.call<int>(QStringLiteral("stuck%1").arg(i), gate.body(1)));
    const auto free = QStringLiteral("free");
    EXPECT_FALSE(reader.call<int>(free, &seven));
    EXPECT_EQ(reader.lateCount(), BoundedRead::mostLate);
    gate.open();
    waitForLate(reader);
    std::optional<int> answer;
    for (int i = 0; i < 1000 && !answer; ++i)
        answer = reader.call<int>(free, &seven);
    EXPECT_EQ(answer, 7);
}

TEST_F(BoundedReadTest, CanBeDestroyedWhileACallIsLate)
{
    Gate gate;
    std::promise<void> ended;
    auto reader = std::make_unique<BoundedRead>();
    EXPECT_FALSE(reader->call<int>(QStringLiteral("stuck"), [wait = gate.body(1), &ended] {
        const auto value = wait();
        ended.set_value();
        return value;
    }));
    reader.reset();
    gate.open();
    EXPECT_EQ(ended.get_future().wait_for(2s), std::future_status::ready);
}

} // namespace brimlight::test
