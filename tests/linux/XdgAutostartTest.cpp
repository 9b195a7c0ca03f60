#include "platform/linux/files/XdgAutostart.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace brimlight::test {
namespace {

class Autostart : public testing::Test
{
protected:
    static constexpr const char *executable = "/opt/brimlight/brimlight";

    void put(const QByteArray &content)
    {
        QDir().mkpath(folder);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray content() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
    }

    QTemporaryDir home;
    QString folder = home.filePath(QStringLiteral("autostart"));
    QString path = folder + QStringLiteral("/brimlight.desktop");
    XdgAutostart item{folder, QString::fromLatin1(executable)};
};

} // namespace

TEST_F(Autostart, EnablingWritesAnEntryThatNamesTheProgram)
{
    EXPECT_FALSE(item.isEnabled());
    EXPECT_FALSE(item.enable());
    EXPECT_TRUE(item.isEnabled());
    const QByteArray entry = content();
    EXPECT_TRUE(entry.startsWith("[Desktop Entry]\n")) << entry.constData();
    EXPECT_TRUE(entry.contains("\nType=Application\n")) << entry.constData();
    EXPECT_TRUE(entry.contains("\nName=Brimlight\n")) << entry.constData();
    EXPECT_TRUE(entry.contains("\nExec=\"/opt/brimlight/brimlight\"\n") ||
                entry.startsWith("[Desktop Entry]\nExec=\"/opt/brimlight/brimlight\"\n"))
        << entry.constData();
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList{QStringLiteral("brimlight.desktop")});
}

TEST_F(Autostart, DisablingRemovesTheEntry)
{
    ASSERT_FALSE(item.enable());
    EXPECT_FALSE(item.disable());
    EXPECT_FALSE(item.isEnabled());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(Autostart, RemovingWhatIsNotThereIsAnError)
{
    EXPECT_EQ(item.disable(), QStringLiteral("There is no entry to remove"));
}

TEST_F(Autostart, AnEntryThatIsMarkedAsOffCountsAsDisabled)
{
    for (const char *line : {"Hidden=true", "X-GNOME-Autostart-enabled=false", "Hidden = true"}) {
        put(QByteArray("[Desktop Entry]\nExec=brimlight\n") + line + '\n');
        EXPECT_FALSE(item.isEnabled()) << line;
        EXPECT_FALSE(item.enable());
        EXPECT_TRUE(item.isEnabled()) << line;
    }
    for (const char *line : {"Hidden=false", "X-GNOME-Autostart-enabled=true", "#Hidden=true",
                             "[Desktop Action x]\nHidden=true"}) {
        put(QByteArray("[Desktop Entry]\nExec=brimlight\n") + line + '\n');
        EXPECT_TRUE(item.isEnabled()) << line;
    }
}

TEST_F(Autostart, AFileThatIsNoEntryCountsAsDisabledAndIsReplaced)
{
    for (const char *nonsense : {"", "nonsense\n", "[Other]\nExec=x\n", "[Desktop Entry]\nExec=\n"}) {
        put(nonsense);
        EXPECT_FALSE(item.isEnabled()) << nonsense;
        EXPECT_FALSE(item.enable());
        EXPECT_TRUE(item.isEnabled()) << nonsense;
    }
}

TEST_F(Autostart, TheUsersOtherKeysAreKept)
{
    put("# mine\n[Desktop Entry]\nName=My panel\nHidden=true\nExec=old\nX-KDE-Delay=5\n\n"
        "[Desktop Action x]\nHidden=true\nExec=other\n");
    EXPECT_FALSE(item.enable());
    EXPECT_EQ(content(), "# mine\n[Desktop Entry]\nName=My panel\nExec=\"/opt/brimlight/brimlight\"\n"
                         "X-KDE-Delay=5\n\n[Desktop Action x]\nHidden=true\nExec=other\n");
}

TEST_F(Autostart, TheExecutableIsQuoted)
{
    EXPECT_EQ(execArgument(QStringLiteral("/a b/c")), QStringLiteral("\"/a b/c\""));
    EXPECT_EQ(execArgument(QStringLiteral("/100%/x")), QStringLiteral("\"/100%%/x\""));
    EXPECT_EQ(execArgument(QStringLiteral("/$a`b\"c")), QStringLiteral("\"/\\\\$a\\\\`b\\\\\"c\""));
    EXPECT_EQ(execArgument(QStringLiteral("/a\\b")), QStringLiteral("\"/a\\\\\\\\b\""));
    EXPECT_EQ(execArgument(QStringLiteral("/a\nb")), QStringLiteral("\"/a\\nb\""));
}

TEST_F(Autostart, WhatCannotBeWrittenIsToldInWords)
{
    // A file where the folder ought to be: nobody can write there, root neither.
    QFile blocker(folder);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    const auto error = item.enable();
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->startsWith(QStringLiteral("Cannot write ") + path + QStringLiteral(": ")))
        << qPrintable(*error);
    EXPECT_FALSE(error->endsWith(QStringLiteral(": ")));
    EXPECT_FALSE(item.isEnabled());
}

TEST_F(Autostart, AUserWithoutAHomeHasNoEntry)
{
    XdgAutostart homeless{QString(), QString::fromLatin1(executable)};
    EXPECT_FALSE(homeless.isEnabled());
    EXPECT_EQ(homeless.enable(), QStringLiteral("There is no home folder"));
    EXPECT_TRUE(homeless.disable());
}

} // namespace brimlight::test
