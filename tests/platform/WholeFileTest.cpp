#include "platform/WholeFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

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

} // namespace

class WholeFiles : public testing::Test
{
protected:
    QStringList names() const
    {
        return QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System);
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
