#include "platform/linux/files/TrashCan.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brimlight::test {
namespace {

constexpr unsigned nobody = 65534;

/// A home and a volume with a trash each. Nobody is above permissions here, not even root.
class TrashCanTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (m_before == 0) {
            ASSERT_EQ(chown(folder.path().toLocal8Bit().constData(), nobody, nobody), 0);
            ASSERT_EQ(seteuid(nobody), 0);
        }
        make(QStringLiteral("Trash/files"));
        make(QStringLiteral("Trash/info"));
        make(QStringLiteral("keep"));
        write(QStringLiteral("keep/me"));
        writeMounts({});
        can = {.homeTrash = path(QStringLiteral("Trash")),
               .mounts = path(QStringLiteral("mountinfo")),
               .user = geteuid()};
    }
    void TearDown() override { EXPECT_EQ(seteuid(m_before), 0); }

    QByteArray path(const QString &name) const { return folder.filePath(name).toLocal8Bit(); }
    void make(const QString &name) { ASSERT_TRUE(QDir(folder.path()).mkpath(name)); }
    void write(const QString &name, const QByteArray &content = "text")
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(name);
        file.write(content);
    }
    /// A file in a trash, with its description.
    void discard(const QString &trash, const QString &name)
    {
        write(trash + QStringLiteral("/files/") + name);
        write(trash + QStringLiteral("/info/") + name + QStringLiteral(".trashinfo"));
    }
    void link(const QString &target, const QString &name)
    {
        ASSERT_EQ(symlink(path(target).constData(), path(name).constData()), 0);
    }
    void writeMounts(const QList<QByteArray> &places, const QByteArray &type = "ext4")
    {
        QByteArray lines;
        for (const QByteArray &place : places)
            lines += "36 35 8:1 / " + place + " rw,noatime shared:1 - " + type + " /dev/sda1 rw\n";
        write(QStringLiteral("mountinfo"), lines);
    }
    QStringList entries(const QString &name) const
    {
        return QDir(folder.filePath(name))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    bool isKept() const { return entries(QStringLiteral("keep")) == QStringList(QStringLiteral("me")); }

    QTemporaryDir folder;
    TrashCan can;

private:
    const uid_t m_before = geteuid();
};

const QString files = QStringLiteral("Trash/files");
const QString info = QStringLiteral("Trash/info");

} // namespace

TEST_F(TrashCanTest, RemovesFilesFoldersAndTheirDescriptions)
{
    discard(QStringLiteral("Trash"), QStringLiteral("a file"));
    make(QStringLiteral("Trash/files/folder/deep/deeper"));
    write(QStringLiteral("Trash/files/folder/deep/deeper/.hidden"));
    write(QStringLiteral("Trash/info/folder.trashinfo"));
    write(QStringLiteral("Trash/info/of nothing.trashinfo"));
    write(QStringLiteral("Trash/directorysizes"));
    make(QStringLiteral("Trash/expunged/12/x"));
    EXPECT_TRUE(can.empty());
    EXPECT_TRUE(entries(files).isEmpty());
    EXPECT_TRUE(entries(info).isEmpty());
    EXPECT_TRUE(entries(QStringLiteral("Trash/expunged")).isEmpty());
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("Trash/directorysizes"))));
    EXPECT_TRUE(can.empty()) << "an empty one";
}

TEST_F(TrashCanTest, FollowsNoLinks)
{
    make(QStringLiteral("Trash/files/folder"));
    link(QStringLiteral("keep"), QStringLiteral("Trash/files/to folder"));
    link(QStringLiteral("keep/me"), QStringLiteral("Trash/files/to file"));
    link(QStringLiteral("keep"), QStringLiteral("Trash/files/folder/inner"));
    link(QStringLiteral("nowhere"), QStringLiteral("Trash/files/dangling"));
    EXPECT_TRUE(can.empty());
    EXPECT_TRUE(entries(files).isEmpty());
    EXPECT_TRUE(isKept());
}

TEST_F(TrashCanTest, ATrashWhoseFilesAreElsewhereIsLeftAlone)
{
    QDir(folder.filePath(files)).removeRecursively();
    link(QStringLiteral("keep"), files);
    write(QStringLiteral("Trash/info/kept.trashinfo"));
    EXPECT_FALSE(can.empty());
    EXPECT_TRUE(isKept());
    EXPECT_EQ(entries(QStringLiteral("Trash/info")), QStringList(QStringLiteral("kept.trashinfo")));
}

TEST_F(TrashCanTest, RemovesWhatIsWriteProtected)
{
    make(QStringLiteral("Trash/files/locked/inner"));
    write(QStringLiteral("Trash/files/locked/inner/file"));
    write(QStringLiteral("Trash/files/locked/file"));
    for (const char *name : {"Trash/files/locked/inner", "Trash/files/locked/file", "Trash/files/locked"})
        ASSERT_EQ(chmod(path(QLatin1String(name)).constData(), 0), 0);
    ASSERT_EQ(chmod(path(files).constData(), S_IRUSR | S_IXUSR), 0);
    EXPECT_TRUE(can.empty());
    EXPECT_TRUE(entries(files).isEmpty());
}

TEST_F(TrashCanTest, WhatCannotBeRemovedKeepsItsDescription)
{
    discard(QStringLiteral("Trash"), QStringLiteral("shallow"));
    write(QStringLiteral("Trash/info/deep.trashinfo"));
    make(QStringLiteral("Trash/files/deep") + QStringLiteral("/x").repeated(40));
    // Too deep for the descriptors there are.
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const int next = dup(0);
    close(next);
    const rlimit few{.rlim_cur = static_cast<rlim_t>(next) + 20, .rlim_max = before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
    EXPECT_FALSE(can.empty());
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_EQ(entries(files), QStringList(QStringLiteral("deep")));
    EXPECT_EQ(entries(info), QStringList(QStringLiteral("deep.trashinfo")));
    EXPECT_TRUE(can.empty());
    EXPECT_TRUE(entries(files).isEmpty());
}

TEST_F(TrashCanTest, EmptiesTheTrashOfEachVolume)
{
    const QString user = QString::number(can.user);
    const QString own = QStringLiteral("one disk/.Trash-") + user;
    const QString shared = QStringLiteral("two/.Trash/") + user;
    const QString others = QStringLiteral("two/.Trash-") + QString::number(can.user + 1);
    for (const QString &trash : {own, shared, others}) {
        make(trash + QStringLiteral("/files"));
        make(trash + QStringLiteral("/info"));
        discard(trash, QStringLiteral("file"));
    }
    ASSERT_EQ(chmod(path(QStringLiteral("two/.Trash")).constData(), 01777), 0);
    writeMounts({path(QStringLiteral("one disk")).replace(' ', "\\040"), path(QStringLiteral("two")),
                 "/nonexistent"});
    EXPECT_TRUE(can.empty());
    for (const QString &trash : {own, shared}) {
        EXPECT_TRUE(entries(trash + QStringLiteral("/files")).isEmpty()) << qPrintable(trash);
        EXPECT_TRUE(entries(trash + QStringLiteral("/info")).isEmpty()) << qPrintable(trash);
    }
    EXPECT_EQ(entries(others + QStringLiteral("/files")).size(), 1) << "that is somebody else's";
}

TEST_F(TrashCanTest, AFolderOnAVolumeThatOthersCouldHavePlantedIsNotTouched)
{
    const QString user = QString::number(can.user);
    make(QStringLiteral("loose/.Trash/%1/files").arg(user));
    write(QStringLiteral("loose/.Trash/%1/files/file").arg(user));
    ASSERT_EQ(chmod(path(QStringLiteral("loose/.Trash")).constData(), 0777), 0);
    make(QStringLiteral("linked"));
    make(QStringLiteral("real/files"));
    write(QStringLiteral("real/files/file"));
    link(QStringLiteral("real"), QStringLiteral("linked/.Trash-%1").arg(user));
    writeMounts({path(QStringLiteral("loose")), path(QStringLiteral("linked"))});
    EXPECT_TRUE(can.empty());
    EXPECT_EQ(entries(QStringLiteral("loose/.Trash/%1/files").arg(user)).size(), 1);
    EXPECT_EQ(entries(QStringLiteral("real/files")).size(), 1);
}

TEST_F(TrashCanTest, WithoutATrashThereIsNothingToDo)
{
    can.homeTrash = path(QStringLiteral("none"));
    can.mounts = path(QStringLiteral("no mounts"));
    EXPECT_TRUE(can.empty());
}

TEST_F(TrashCanTest, ExistsWithTheFirstOfItsFolders)
{
    EXPECT_TRUE(can.exists()) << "the one at home";
    can.homeTrash = path(QStringLiteral("nowhere"));
    EXPECT_FALSE(can.exists());
    make(QStringLiteral("disk"));
    writeMounts({path(QStringLiteral("disk"))});
    EXPECT_FALSE(can.exists());
    make(QStringLiteral("disk/.Trash-%1").arg(can.user));
    EXPECT_TRUE(can.exists()) << "the one of a volume";
}

TEST(MountPoints, AreUnescapedAndEachGivenOnce)
{
    const QByteArray mountinfo = "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
                                 "23 22 0:5 / /home/a\\040b\\134c rw - nfs server:/a rw\n"
                                 "24 22 0:6 / /misc rw shared:3 master:1 - autofs systemd-1 rw\n"
                                 "25 22 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                 "short line\n"
                                 "26 22 8:1 / /no-separator rw ext4 /dev/sda1 rw\n";
    EXPECT_EQ(mountPoints(mountinfo), QList<QByteArray>({"/", "/home/a b\\c"}));
    EXPECT_TRUE(mountPoints({}).isEmpty());
}

} // namespace brimlight::test
