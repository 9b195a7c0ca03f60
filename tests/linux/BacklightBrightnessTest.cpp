#include "platform/linux/kernel/BacklightBrightness.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace brimlight::test {

class Backlight : public testing::Test
{
protected:
    void set(const QString &file, const QByteArray &content)
    {
        const QString path = sys.filePath(QStringLiteral("class/backlight/") + file);
        QDir().mkpath(QFileInfo(path).path());
        QFile target(path);
        ASSERT_TRUE(target.open(QIODevice::WriteOnly));
        target.write(content + '\n');
    }
    void add(const QString &name, const QByteArray &type, int now, int most)
    {
        set(name + QStringLiteral("/type"), type);
        set(name + QStringLiteral("/brightness"), QByteArray::number(now));
        set(name + QStringLiteral("/max_brightness"), QByteArray::number(most));
    }
    void remove(const QString &name)
    {
        QDir(sys.filePath(QStringLiteral("class/backlight/") + name)).removeRecursively();
    }
    std::optional<double> read() { return backlight.linearBrightness(); }

    const QTemporaryDir sys;
    BacklightBrightness backlight{sys.path()};
};

TEST_F(Backlight, IsAbsentWithoutOne)
{
    EXPECT_FALSE(read());
}

TEST_F(Backlight, IsTheShareOfTheMost)
{
    add(QStringLiteral("intel_backlight"), "raw", 12000, 96000);
    EXPECT_EQ(read(), 0.125);
    set(QStringLiteral("intel_backlight/brightness"), "96000");
    EXPECT_EQ(read(), 1);
    set(QStringLiteral("intel_backlight/brightness"), "0");
    EXPECT_EQ(read(), 0);
}

TEST_F(Backlight, TheFirmwareCountsBeforeThePlatformAndThatBeforeTheHardware)
{
    add(QStringLiteral("a"), "raw", 1, 10);
    add(QStringLiteral("b"), "platform", 2, 10);
    add(QStringLiteral("c"), "firmware", 3, 10);
    EXPECT_EQ(read(), 0.3);
    remove(QStringLiteral("c"));
    EXPECT_EQ(read(), 0.2);
    remove(QStringLiteral("b"));
    EXPECT_EQ(read(), 0.1);
    remove(QStringLiteral("a"));
    EXPECT_FALSE(read());
}

TEST_F(Backlight, OneThatComesLaterIsFound)
{
    EXPECT_FALSE(read());
    add(QStringLiteral("amdgpu_bl0"), "raw", 128, 256);
    EXPECT_EQ(read(), 0.5);
}

TEST_F(Backlight, WhatMakesNoSenseIsAbsent)
{
    add(QStringLiteral("panel"), "raw", 5, 0);
    EXPECT_FALSE(read());
    set(QStringLiteral("panel/max_brightness"), "much");
    EXPECT_FALSE(read());
    set(QStringLiteral("panel/max_brightness"), "10");
    set(QStringLiteral("panel/brightness"), "");
    EXPECT_FALSE(read());
    set(QStringLiteral("panel/brightness"), "40");
    EXPECT_EQ(read(), 1);
}

} // namespace brimlight::test
