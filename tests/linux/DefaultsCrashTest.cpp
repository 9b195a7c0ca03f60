#include "platform/linux/files/BackgroundFileWriter.h"
#include "platform/linux/files/JsonUserDefaults.h"

#include "fakes/Fakes.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace brimlight::test {
namespace {

QString key()
{
    return QStringLiteral("first");
}

/// Long enough that half a file would be seen.
QString valueOf(int number)
{
    return QString::number(number) + QString(20000, QLatin1Char('x'));
}

/// A process that sets one value after the other, the numbers from `start` on, and says each number by a byte
/// through the pipe once it has been set.
class Setting
{
public:
    /// The byte comes once the value is in the file, too.
    enum class Says { whenSet, whenWritten };

    Setting(const QString &path, int start, Says says)
    {
        int ends[2] = {};
        EXPECT_EQ(pipe(ends), 0);
        m_child = fork();
        if (m_child == 0) {
            ::close(ends[0]);
            setForEver(path, start, says, ends[1]);
        }
        ::close(ends[1]);
        m_readEnd = ends[0];
    }
    ~Setting() { ::close(m_readEnd); }
    Setting(const Setting &) = delete;
    Setting &operator=(const Setting &) = delete;

    void awaitValues(int count) const
    {
        char byte = 0;
        for (int i = 0; i < count; ++i)
            ASSERT_EQ(::read(m_readEnd, &byte, 1), 1);
    }
    void kill() const
    {
        ::kill(m_child, SIGKILL);
        waitpid(m_child, nullptr, 0);
    }

private:
    [[noreturn]] static void setForEver(const QString &path, int start, Says says, int writeEnd)
    {
        RecordingLog log;
        BackgroundFileWriter writer(log);
        JsonUserDefaults defaults(SavedFile(path, writer));
        for (int i = start;; ++i) {
            defaults.setValue(key(), valueOf(i));
            if (says == Says::whenWritten)
                writer.flush();
            if (::write(writeEnd, "x", 1) != 1)
                _exit(1);
        }
    }

    pid_t m_child = -1;
    int m_readEnd = -1;
};

class DefaultsCrash : public testing::Test
{
protected:
    /// The number in the file; -1 when it is torn, 0 when there is none.
    int stored() const
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return 0;
        const QString text = QJsonDocument::fromJson(file.readAll()).object().value(key()).toString();
        const int number = text.section(u'x', 0, 0).toInt();
        return text == valueOf(number) ? number : -1;
    }

    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("defaults.json"));
};

} // namespace

TEST_F(DefaultsCrash, KilledAtAnyMomentTheFileIsTheOldOneOrTheNewOneWhole)
{
    int changed = 0;
    int start = 1;
    for (int round = 0; round < 30; ++round) {
        const int before = stored();
        const Setting process(path, start, Setting::Says::whenSet);
        // Values are set faster than written, so these moments fall anywhere in a write.
        process.awaitValues(1 + 5 * round);
        process.kill();
        const int after = stored();
        ASSERT_GE(after, before) << "round " << round;
        changed += after != before;
        start = std::max(start, after) + 1000;
    }
    EXPECT_GT(changed, 1) << "no write was under way: the test proves nothing";
}

TEST_F(DefaultsCrash, WhatWasWrittenBeforeTheKillIsThere)
{
    for (int round = 0; round < 10; ++round) {
        const int start = 1000 * round + 1;
        const Setting process(path, start, Setting::Says::whenWritten);
        process.awaitValues(1 + round);
        process.kill();
        ASSERT_GE(stored(), start + round);
    }
}

TEST_F(DefaultsCrash, AValueReachesTheFileThoughTheProcessDoesNothingMore)
{
    int ends[2] = {};
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        RecordingLog log;
        BackgroundFileWriter writer(log);
        JsonUserDefaults defaults(SavedFile(path, writer));
        for (int i = 1; i <= 500; ++i)
            defaults.setValue(key(), valueOf(i));
        // No loop turns and nothing is flushed from here on.
        char byte = 0;
        ::close(ends[1]);
        [[maybe_unused]] const auto never = ::read(ends[0], &byte, 1);
        _exit(0);
    }
    while (stored() != 500)
        ASSERT_EQ(waitpid(child, nullptr, WNOHANG), 0) << "it lives until it is killed";
    ::kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    ::close(ends[0]);
    ::close(ends[1]);
    EXPECT_EQ(stored(), 500);
}

} // namespace brimlight::test
