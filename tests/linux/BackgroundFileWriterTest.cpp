#include "platform/linux/files/BackgroundFileWriter.h"

#include "fakes/Fakes.h"
#include "platform/SavedFile.h"
#include "platform/WholeFile.h"
#include "platform/linux/files/JsonUserDefaults.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <future>
#include <mutex>
#include <semaphore>
#include <thread>

namespace brimlight::test {
namespace {

using Disk = BackgroundFileWriter::Disk;

/// A disk that lets one write through for each `go()` and remembers what was asked of it.
class HeldDisk
{
public:
    Disk disk()
    {
        Disk held = Disk::real();
        held.write = [this](WholeFile &file, const QByteArray &content, const WholeFile::Sync &sync) {
            m_begun.release();
            m_gate.acquire();
            {
                const std::scoped_lock lock(m_mutex);
                m_written.append(content);
            }
            return file.write(content, sync);
        };
        return held;
    }
    /// Returns once the next write is at the disk.
    void awaitWrite() { m_begun.acquire(); }
    void go(int writes = 1) { m_gate.release(writes); }
    QByteArrayList written() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_written;
    }

private:
    std::counting_semaphore<> m_begun{0};
    std::counting_semaphore<> m_gate{0};
    mutable std::mutex m_mutex;
    QByteArrayList m_written;
};

class BackgroundFileWriterTest : public testing::Test
{
protected:
    QString path(const char *name) const { return folder.filePath(QLatin1String(name)); }
    static QByteArray content(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
    }
    /// Nothing is done in this process meanwhile but looking.
    static void awaitContent(const QString &path, const QByteArray &expected)
    {
        while (content(path) != expected)
            std::this_thread::yield();
    }

    const QTemporaryDir folder;
    RecordingLog log;
};

} // namespace

TEST_F(BackgroundFileWriterTest, AWriterThatIsBlockedDoesNotDelaySetValue)
{
    HeldDisk disk;
    BackgroundFileWriter writer(log, disk.disk());
    JsonUserDefaults defaults(SavedFile(path("defaults.json"), writer));
    const QString key = QStringLiteral("brimlight.glassStrength");
    for (int step = 0; step <= 1000; ++step) {
        defaults.setValue(key, step / 1000.0);
        ASSERT_EQ(defaults.read<double>(key), step / 1000.0) << "in the process the value is there at once";
    }
    disk.awaitWrite();
    EXPECT_EQ(content(path("defaults.json")), "<none>");
    disk.go(2);
}

TEST_F(BackgroundFileWriterTest, OfWhatCameWhileTheDiskWasBusyOnlyTheNewestIsWritten)
{
    HeldDisk disk;
    BackgroundFileWriter writer(log, disk.disk());
    SavedFile file(path("a"), writer);
    file.write("first");
    disk.awaitWrite();
    for (const char *content : {"second", "third", "last"})
        file.write(content);
    disk.go(2);
    EXPECT_TRUE(writer.flush());
    EXPECT_EQ(disk.written(), (QByteArrayList{"first", "last"}));
    EXPECT_EQ(content(path("a")), "last");
}

TEST_F(BackgroundFileWriterTest, OneFileAtATimeAndNoneIsForgotten)
{
    HeldDisk disk;
    BackgroundFileWriter writer(log, disk.disk());
    SavedFile a(path("a"), writer);
    SavedFile b(path("b"), writer);
    a.write("a1");
    disk.awaitWrite();
    b.write("b1");
    a.write("a2");
    b.write("b2");
    EXPECT_TRUE(disk.written().isEmpty());
    disk.go(3);
    EXPECT_TRUE(writer.flush());
    EXPECT_EQ(disk.written(), (QByteArrayList{"a1", "b2", "a2"}));
}

TEST_F(BackgroundFileWriterTest, TheContentReachesTheFileWithoutAnythingElseHappening)
{
    BackgroundFileWriter writer(log);
    SavedFile file(path("deep/er/a"), writer);
    file.write("one");
    awaitContent(file.path(), "one");
    file.write("two");
    awaitContent(file.path(), "two");
}

TEST_F(BackgroundFileWriterTest, ADiskThatIsSlowToSyncDoesNotKeepTheContentFromTheFile)
{
    std::promise<void> end;
    std::shared_future<void> held = end.get_future().share();
    Disk disk = Disk::real();
    disk.sync = [held](int) { held.wait(); };
    disk.syncPatience = std::chrono::milliseconds(1);
    {
        BackgroundFileWriter writer(log, disk);
        SavedFile file(path("a"), writer);
        for (const char *content : {"one", "two", "three"}) {
            file.write(content);
            awaitContent(file.path(), content);
        }
    }
    end.set_value();
}

TEST_F(BackgroundFileWriterTest, ADiskThatSyncsInTimeIsWaitedFor)
{
    std::atomic<int> synced = 0;
    Disk disk = Disk::real();
    disk.syncPatience = std::chrono::hours(1);
    disk.sync = [&](int descriptor) {
        char bytes[4] = {};
        EXPECT_EQ(pread(descriptor, bytes, sizeof bytes, 0), 3);
        EXPECT_EQ(content(path("a")), "<none>") << "the file is still the old one";
        ++synced;
    };
    BackgroundFileWriter writer(log, disk);
    SavedFile(path("a"), writer).write("new");
    EXPECT_TRUE(writer.flush());
    EXPECT_EQ(synced, 1);
}

TEST_F(BackgroundFileWriterTest, ItsEndWaitsForWhatIsToBeWritten)
{
    HeldDisk disk;
    {
        BackgroundFileWriter writer(log, disk.disk());
        SavedFile file(path("a"), writer);
        file.write("first");
        disk.awaitWrite();
        file.write("last");
        disk.go(2);
    }
    EXPECT_EQ(content(path("a")), "last");
}

TEST_F(BackgroundFileWriterTest, ADiskThatHangsDoesNotKeepTheProgramFromEnding)
{
    HeldDisk disk;
    BackgroundFileWriter writer(log, disk.disk());
    SavedFile(path("a"), writer).write("late");
    disk.awaitWrite();
    EXPECT_FALSE(writer.flush(std::chrono::milliseconds(1)));
    disk.go();
    EXPECT_TRUE(writer.flush());
}

TEST_F(BackgroundFileWriterTest, AFileThatCannotBeWrittenIsLoggedOnceUntilItCanBeAgain)
{
    BackgroundFileWriter writer(log);
    // Root is stopped by a file in the place of the folder, not by permissions.
    QFile(path("folder")).open(QIODevice::WriteOnly);
    SavedFile file(path("folder/a.json"), writer);
    const auto save = [&](const char *content) {
        file.write(content);
        ASSERT_TRUE(writer.flush());
    };
    save("one");
    save("two");
    ASSERT_EQ(log.entries.size(), 1U);
    EXPECT_EQ(log.entries[0].level, LogLevel::error);
    EXPECT_EQ(log.entries[0].category, QStringLiteral("Files"));
    EXPECT_TRUE(log.entries[0].message.startsWith(QStringLiteral("a.json cannot be saved: ")));
    QFile::remove(path("folder"));
    save("three");
    EXPECT_EQ(content(path("folder/a.json")), "three");
    QDir(path("folder")).removeRecursively();
    QFile(path("folder")).open(QIODevice::WriteOnly);
    save("four");
    EXPECT_EQ(log.entries.size(), 2U) << "a new failure is news";
}

TEST_F(BackgroundFileWriterTest, TheWordsOfTheStoreAreLogged)
{
    BackgroundFileWriter writer(log);
    SavedFile file(QStringLiteral("/proc/brimlight/a.json"), writer);
    file.setFailureWords({QStringLiteral("Theme"), QStringLiteral("Failed: ")});
    file.write("one");
    ASSERT_TRUE(writer.flush());
    ASSERT_EQ(log.entries.size(), 1U);
    EXPECT_EQ(log.entries[0].category, QStringLiteral("Theme"));
    EXPECT_EQ(log.entries[0].message, QStringLiteral("Failed: the folder cannot be made"));
}

TEST_F(BackgroundFileWriterTest, WhatCouldNotBeReadIsKeptAsideFirst)
{
    QFile old(path("a"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("garbage");
    old.close();
    BackgroundFileWriter writer(log);
    SavedFile file(path("a"), writer);
    EXPECT_EQ(file.read(), "garbage");
    file.markUnusable();
    file.write("one");
    file.write("two");
    EXPECT_TRUE(writer.flush());
    EXPECT_EQ(content(path("a")), "two");
    EXPECT_EQ(content(path("a.unreadable-1")), "garbage");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 2);
}

} // namespace brimlight::test
