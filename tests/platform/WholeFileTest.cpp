#include "platform/WholeFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brimlight::test {
namespace {

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

/// As if the disk were full: a file may not grow beyond this. Also for root.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limited{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_before = {};
    // Else the process would be killed instead of getting an error.
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

} // namespace

class WholeFiles : public testing::Test
{
protected:
    QStringList names() const
    {
        return QDir(dir.path())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System | QDir::Hidden);
    }

    QTemporaryDir dir;
    QString path = dir.filePath(QStringLiteral("store.json"));
};

TEST_F(WholeFiles, NoFileIsAbsentAndNothingIsKeptAside)
{
    WholeFile file(path);
    EXPECT_FALSE(file.read());
    EXPECT_TRUE(file.write("new"));
    EXPECT_EQ(names(), QStringList{QStringLiteral("store.json")});
    EXPECT_EQ(content(path), "new");
}

TEST_F(WholeFiles, MissingFoldersAreMade)
{
    WholeFile file(dir.filePath(QStringLiteral("a/b/store.json")));
    EXPECT_TRUE(file.write("new"));
    EXPECT_EQ(content(file.path()), "new");
}

TEST_F(WholeFiles, AnUnusableFileIsKeptAsideBeforeTheFirstWriteOnly)
{
    put(path, "garbage");
    WholeFile file(path);
    EXPECT_EQ(file.read(), "garbage");
    file.markUnusable();
    EXPECT_EQ(content(path), "garbage") << "reading changes nothing";
    EXPECT_TRUE(file.write("one"));
    EXPECT_TRUE(file.write("two"));
    EXPECT_EQ(content(path), "two");
    EXPECT_EQ(content(path + QStringLiteral(".unreadable-1")), "garbage");
    EXPECT_EQ(names().size(), 2);
}

TEST_F(WholeFiles, AnEarlierFileKeptAsideIsNotOverwritten)
{
    for (const char *bytes : {"first", "second"}) {
        put(path, bytes);
        WholeFile file(path);
        file.read();
        file.markUnusable();
        EXPECT_TRUE(file.write("new"));
    }
    EXPECT_EQ(content(path + QStringLiteral(".unreadable-1")), "first");
    EXPECT_EQ(content(path + QStringLiteral(".unreadable-2")), "second");
}

TEST_F(WholeFiles, AFolderInThePlaceOfTheFileIsKeptAside)
{
    QDir().mkpath(path + QStringLiteral("/inside"));
    WholeFile file(path);
    EXPECT_FALSE(file.read());
    EXPECT_TRUE(file.write("new"));
    EXPECT_EQ(content(path), "new");
    EXPECT_TRUE(QDir(path + QStringLiteral(".unreadable-1/inside")).exists());
}

TEST_F(WholeFiles, ANamedPipeDoesNotBlock)
{
    ASSERT_EQ(mkfifo(path.toLocal8Bit().constData(), 0600), 0);
    WholeFile file(path);
    EXPECT_FALSE(file.read());
    EXPECT_TRUE(file.write("new"));
    EXPECT_EQ(content(path), "new");
}

TEST_F(WholeFiles, ALinkKeepsBeingALink)
{
    const QString target = dir.filePath(QStringLiteral("target.json"));
    put(target, "old");
    ASSERT_TRUE(QFile::link(target, path));
    WholeFile file(path);
    EXPECT_EQ(file.read(), "old");
    EXPECT_TRUE(file.write("new"));
    EXPECT_EQ(content(target), "new");
    EXPECT_TRUE(QFileInfo(path).isSymLink());
}

TEST_F(WholeFiles, PermissionsStayAndANewFileIsTheUsersAlone)
{
    WholeFile file(path);
    EXPECT_TRUE(file.write("one"));
    const QFile::Permissions own = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFile::permissions(path), own);
    QFile::setPermissions(path, own | QFile::ReadGroup);
    EXPECT_TRUE(file.write("two"));
    EXPECT_EQ(QFile::permissions(path), own | QFile::ReadGroup);
}

TEST_F(WholeFiles, TheOldContentIsThereUntilTheNewOneIsOnTheDisk)
{
    put(path, "old");
    WholeFile file(path);
    QByteArray meanwhile;
    EXPECT_TRUE(file.write("new", [&](int descriptor) {
        meanwhile = content(path);
        struct stat status = {};
        EXPECT_EQ(fstat(descriptor, &status), 0);
        EXPECT_EQ(status.st_size, 3) << "all of it can be waited for";
    }));
    EXPECT_EQ(meanwhile, "old");
    EXPECT_EQ(content(path), "new");
}

TEST_F(WholeFiles, ADiskThatIsFullLeavesTheOldContentAndNoOtherFile)
{
    put(path, "old");
    WholeFile file(path);
    {
        const FileSizeLimit limit(1000);
        EXPECT_FALSE(file.write(QByteArray(5000, 'x')));
    }
    EXPECT_FALSE(file.errorString().isEmpty());
    EXPECT_EQ(content(path), "old");
    EXPECT_EQ(names(), QStringList{QStringLiteral("store.json")});
    EXPECT_TRUE(file.write(QByteArray(5000, 'x'))) << "there is room again";
}

TEST_F(WholeFiles, WhatCannotBeKeptAsideIsNotOverwritten)
{
    // Even root cannot rename what is a mount point or lies in the kernel's file systems.
    WholeFile file(QStringLiteral("/proc/version"));
    const auto before = file.read();
    ASSERT_TRUE(before);
    file.markUnusable();
    EXPECT_FALSE(file.write("new"));
    EXPECT_EQ(file.read(), before);
}

TEST_F(WholeFiles, AFailedWriteLeavesTheOldContent)
{
    WholeFile file(QStringLiteral("/proc/brimlight/store.json"));
    EXPECT_FALSE(file.write("new"));
}

} // namespace brimlight::test
