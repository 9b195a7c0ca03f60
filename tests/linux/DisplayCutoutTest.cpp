#include "platform/linux/screens/DisplayCutout.h"

#include "platform/linux/screens/QtScreens.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace brimlight::test {
namespace {

const QByteArray laptop = R"({
    "name": "A laptop", "x-res": 3024, "y-res": 1964, "border-radius": 30,
    "cutouts": [{"name": "notch", "path": "M 1320 0 V 74 H 1704 V 0 Z"}]
})";

} // namespace

TEST(SvgPathBounds, FollowsAbsoluteAndRelativeCommands)
{
    EXPECT_EQ(svgPathBounds(QStringLiteral("M 10 20 H 40 V 60 H 10 Z")), QRectF(10, 20, 30, 40));
    EXPECT_EQ(svgPathBounds(QStringLiteral("m10,20 h30v40h-30z")), QRectF(10, 20, 30, 40));
    EXPECT_EQ(svgPathBounds(QStringLiteral("M0 0 10 5 -3 7")), QRectF(-3, 0, 13, 7));
    EXPECT_EQ(svgPathBounds(QStringLiteral("m1 1 l2 2 z m5 5 l1 1")), QRectF(1, 1, 6, 6));
    EXPECT_EQ(svgPathBounds(QStringLiteral("M0 0 C 1 9 2 9 3 0")), QRectF(0, 0, 3, 9));
    EXPECT_EQ(svgPathBounds(QStringLiteral("M 5 5 A 2 2 0 1 1 9 5")), QRectF(5, 5, 4, 0));
    EXPECT_EQ(svgPathBounds(QStringLiteral("M1e1-2.5L.5.5")), QRectF(0.5, -2.5, 9.5, 3));
}

TEST(SvgPathBounds, RefusesWhatIsNoPath)
{
    for (const char *path : {"M", "M 1", "L x y", "10 20", "M 1 2 W 3", "M 1 2 Z 5", "M nan 1", "M 1e999 1"})
        EXPECT_FALSE(svgPathBounds(QLatin1String(path))) << path;
    EXPECT_FALSE(svgPathBounds(QString()));
}

TEST(DisplayPanel, ReadsSizeAndTopCutout)
{
    const auto panel = parseDisplayPanel(laptop);
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->width, 3024);
    EXPECT_EQ(panel->topCutout, QRectF(1320, 0, 384, 74));
}

TEST(DisplayPanel, ACutoutElsewhereIsNoHousing)
{
    const auto panel = parseDisplayPanel(
        R"({"x-res": 100, "y-res": 200, "cutouts": [{"path": "M 40 190 H 60 V 200 H 40 Z"}]})");
    ASSERT_TRUE(panel);
    EXPECT_FALSE(panel->topCutout);
}

TEST(DisplayPanel, BytesThatAreNoSuchDocumentAreRefused)
{
    for (const char *bytes :
         {"", "[]", "{", "{\"x-res\": 0, \"y-res\": 5}", "{\"x-res\": \"1\", \"y-res\": 5}"})
        EXPECT_FALSE(parseDisplayPanel(bytes)) << bytes;
    const auto broken = parseDisplayPanel(R"({"x-res": 9, "y-res": 9, "cutouts": [{"path": "?"}, 5, null]})");
    ASSERT_TRUE(broken);
    EXPECT_FALSE(broken->topCutout);
}

TEST(DisplayPanel, TheMostSpecificNameOfTheMachineIsTaken)
{
    const QTemporaryDir dir;
    const auto put = [&](const QString &name, const QByteArray &bytes) {
        QFile file(dir.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    };
    put(QStringLiteral("compatible"), QByteArray("maker,board-rev2\0maker,board\0maker,soc\0", 40));
    put(QStringLiteral("maker,soc.json"), R"({"x-res": 1, "y-res": 1})");
    put(QStringLiteral("maker,board.json"), laptop);
    const auto panel = findPanel(dir.filePath(QStringLiteral("compatible")),
                                 {dir.filePath(QStringLiteral("nowhere")), dir.path()});
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->width, 3024);
    EXPECT_FALSE(findPanel(dir.filePath(QStringLiteral("none")), {dir.path()}));
}

TEST(DisplayPanel, NamesCannotLeaveTheFolder)
{
    EXPECT_EQ(parseCompatible(QByteArray("../../etc/x\0good\0\0", 18)), QStringList{QStringLiteral("good")});
}

TEST(DisplayPanel, GivesTheScreenItsHousingInPoints)
{
    Screen screen{.localizedName = QStringLiteral("eDP-1"),
                  .frame = {0, 0, 1512, 982},
                  .visibleFrame = {0, 0, 1512, 982}};
    applyCutout(screen, *parseDisplayPanel(laptop), 2);
    EXPECT_EQ(screen.safeAreaTop, 37);
    EXPECT_EQ(screen.auxiliaryTopLeftArea, (Rect{0, 945, 660, 37}));
    EXPECT_EQ(screen.auxiliaryTopRightArea, (Rect{852, 945, 660, 37}));
}

TEST(DisplayPanel, AScreenOfAnotherSizeHasNone)
{
    Screen screen{.localizedName = QStringLiteral("eDP-1"), .frame = {0, 0, 1920, 1080}, .visibleFrame = {}};
    applyCutout(screen, *parseDisplayPanel(laptop), 1);
    EXPECT_EQ(screen.safeAreaTop, 0);
}

} // namespace brimlight::test
