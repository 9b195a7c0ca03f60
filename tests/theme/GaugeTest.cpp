#include "theme/RingGauge.h"
#include "theme/RollingNumber.h"
#include "theme/Sparkline.h"

#include "fakes/HandDriver.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <cmath>
#include <limits>
#include <numbers>

namespace brimlight::test {
namespace {

class Gauge : public testing::Test
{
protected:
    Gauge()
    {
        m_window.setColor(Qt::black);
        m_window.resize(300, 200);
        m_window.show();
        QCoreApplication::processEvents();
    }

    /// Puts the item on screen, complete, as QML does.
    template<typename Item>
    void show(Item &item, QSizeF size)
    {
        item.setPosition({40, 40});
        item.setSize(size);
        item.setParentItem(m_window.contentItem());
        static_cast<QQmlParserStatus &>(item).componentComplete();
    }

    QImage picture()
    {
        QImage image = m_window.grabWindow().convertToFormat(QImage::Format_RGB32);
        image.setDevicePixelRatio(m_window.effectiveDevicePixelRatio());
        return image;
    }

    HandDriver m_time;
    QQuickWindow m_window;
};

/// How bright a picture is at a point of the window.
int lightAt(const QImage &picture, QPointF point)
{
    const double ratio = picture.devicePixelRatio();
    return qGray(picture.pixel((point * ratio).toPoint()));
}

QPointF onRing(QPointF centre, double radius, double turn)
{
    const double angle = turn * 2 * std::numbers::pi;
    return centre + radius * QPointF(std::sin(angle), -std::cos(angle));
}

using namespace std::chrono_literals;

} // namespace

TEST(RingProgress, IsLimitedToAtMostOneAndAtLeastADot)
{
    EXPECT_EQ(ringProgress(0), 0.001);
    EXPECT_EQ(ringProgress(-3), 0.001);
    EXPECT_EQ(ringProgress(0.0005), 0.001);
    EXPECT_EQ(ringProgress(0.4), 0.4);
    EXPECT_EQ(ringProgress(1), 1);
    EXPECT_EQ(ringProgress(1.5), 1);
    EXPECT_EQ(ringProgress(std::numeric_limits<double>::quiet_NaN()), 0.001);
}

TEST(RingProgress, ArcFadesInToItsMiddleAndOutALittle)
{
    EXPECT_DOUBLE_EQ(ringOpacity(0), 0.38);
    EXPECT_DOUBLE_EQ(ringOpacity(0.25), 0.69);
    EXPECT_DOUBLE_EQ(ringOpacity(0.5), 1);
    EXPECT_DOUBLE_EQ(ringOpacity(0.75), 0.87);
    EXPECT_DOUBLE_EQ(ringOpacity(1), 0.74);
}

TEST_F(Gauge, RingAtZeroShowsADotAtTheTop)
{
    RingGauge ring;
    ring.setReduceMotion(true);
    ring.setTrack(Qt::transparent);
    show(ring, {60, 60});
    const QImage image = picture();
    EXPECT_GT(lightAt(image, onRing({70, 70}, 30, 0)), 60);
    EXPECT_LT(lightAt(image, onRing({70, 70}, 30, 0.25)), 5);
    EXPECT_LT(lightAt(image, onRing({70, 70}, 30, 0.5)), 5);
    EXPECT_LT(lightAt(image, onRing({70, 70}, 30, 0.75)), 5);
}

TEST_F(Gauge, RingRunsClockwiseFromTheTop)
{
    RingGauge ring;
    ring.setReduceMotion(true);
    ring.setTrack(Qt::transparent);
    ring.setValue(0.25);
    show(ring, {60, 60});
    const QImage image = picture();
    EXPECT_GT(lightAt(image, onRing({70, 70}, 30, 0.12)), 90);
    EXPECT_LT(lightAt(image, onRing({70, 70}, 30, 0.5)), 5);
    EXPECT_LT(lightAt(image, onRing({70, 70}, 30, 0.88)), 5);
}

TEST_F(Gauge, RingAboveOneIsFull)
{
    RingGauge ring;
    ring.setReduceMotion(true);
    ring.setTrack(Qt::transparent);
    ring.setValue(1.5);
    show(ring, {60, 60});
    const QImage image = picture();
    for (double turn = 0; turn < 1; turn += 0.02)
        EXPECT_GT(lightAt(image, onRing({70, 70}, 30, turn)), 90) << turn;
    EXPECT_NEAR(lightAt(image, onRing({70, 70}, 30, 0.5)), 255, 6);
}

TEST_F(Gauge, RingGlowsAroundItsLine)
{
    RingGauge ring;
    ring.setReduceMotion(true);
    ring.setTrack(Qt::transparent);
    ring.setValue(1);
    show(ring, {60, 60});
    const QImage image = picture();
    const int near = lightAt(image, onRing({70, 70}, 30 + 3 + 1.5, 0.5));
    const int far = lightAt(image, onRing({70, 70}, 30 + 3 + 4.5, 0.5));
    EXPECT_GT(near, 8);
    EXPECT_LT(near, 90);
    EXPECT_LT(far, near);
    EXPECT_LT(lightAt(image, onRing({70, 70}, 30 + 3 + 9, 0.5)), 2);
}

TEST_F(Gauge, RingSweepsInWhenItFirstAppears)
{
    RingGauge ring;
    ring.setValue(0.8);
    show(ring, {60, 60});
    EXPECT_EQ(ring.progress(), 0.001);
    m_time.advanceBy(0ms);
    m_time.advanceBy(225ms);
    EXPECT_NEAR(ring.progress(), 0.001 + 0.799 * 0.75, 0.01) << "ease-out is past its middle at half time";
    m_time.advanceBy(225ms);
    EXPECT_EQ(ring.progress(), 0.8);
}

TEST_F(Gauge, RingFollowsAChangeByASpring)
{
    RingGauge ring;
    ring.setValue(0.2);
    show(ring, {60, 60});
    m_time.advanceBy(0ms);
    m_time.advanceBy(450ms);
    ring.setValue(0.6);
    EXPECT_EQ(ring.progress(), 0.2);
    m_time.advanceBy(0ms);
    m_time.advanceBy(200ms);
    EXPECT_NEAR(ring.progress(), 0.2 + 0.4 * Spring(500ms, 0.8).value(200ms), 0.01);
    m_time.advanceBy(2s);
    EXPECT_EQ(ring.progress(), 0.6);
}

TEST_F(Gauge, RingFollowsInStepsOfTwoFrames)
{
    RingGauge ring;
    ring.setValue(0.2);
    show(ring, {60, 60});
    m_time.advanceBy(0ms);
    m_time.advanceBy(450ms);
    ring.setValue(0.6);
    m_time.advanceBy(0ms);
    m_time.advanceBy(17ms);
    EXPECT_EQ(ring.progress(), 0.2);
    m_time.advanceBy(17ms);
    EXPECT_GT(ring.progress(), 0.2);
}

TEST_F(Gauge, RingTakesAChangeBelowAPointAtOnce)
{
    RingGauge ring;
    ring.setValue(0.2);
    show(ring, {60, 60});
    m_time.advanceBy(0ms);
    m_time.advanceBy(450ms);
    ring.setValue(0.204);
    EXPECT_EQ(ring.progress(), 0.204);
}

TEST_F(Gauge, NothingMovesUnderReducedMotion)
{
    RingGauge ring;
    ring.setReduceMotion(true);
    ring.setValue(0.5);
    show(ring, {60, 60});
    EXPECT_EQ(ring.progress(), 0.5);
    ring.setValue(0.9);
    EXPECT_EQ(ring.progress(), 0.9);

    RollingNumber number;
    number.setReduceMotion(true);
    number.setText(QStringLiteral("12:00"));
    show(number, {60, 20});
    number.setText(QStringLiteral("12:01"));
    EXPECT_FALSE(number.rolling());

    Sparkline line;
    line.setReduceMotion(true);
    line.setValues({0, 0});
    show(line, {60, 20});
    const QImage drawn = picture();
    m_time.advanceBy(1s);
    EXPECT_EQ(picture(), drawn);
}

TEST_F(Gauge, NothingMovesWhileHidden)
{
    RingGauge ring;
    ring.setVisible(false);
    ring.setValue(0.5);
    show(ring, {60, 60});
    ring.setValue(0.7);
    EXPECT_EQ(ring.progress(), 0.7);
    ring.setVisible(true);
    EXPECT_EQ(ring.progress(), 0.001) << "the sweep waited for the first appearance";
    m_time.advanceBy(0ms);
    m_time.advanceBy(100ms);
    ring.setVisible(false);
    EXPECT_EQ(ring.progress(), 0.7) << "hidden half way: at rest where it was going";
    ring.setVisible(true);
    EXPECT_EQ(ring.progress(), 0.7) << "it sweeps in but once";
}

TEST(SparklinePoints, SpreadOverTheWholeWidthAndStandOnTheirHeight)
{
    const QPolygonF points = sparklinePoints({0, 0.5, 1}, {100, 40});
    EXPECT_EQ(points, QPolygonF({{0, 40}, {50, 20}, {100, 0}}));
}

TEST(SparklinePoints, SamplesBeyondTheRangeLieOnTheEdges)
{
    const QPolygonF points = sparklinePoints({2, -1}, {100, 40});
    EXPECT_EQ(points, QPolygonF({{0, 0}, {100, 40}}));
}

TEST(SparklinePoints, OneSampleStandsAtTheLeft)
{
    EXPECT_EQ(sparklinePoints({0.5}, {100, 40}), QPolygonF({{0, 20}}));
    EXPECT_TRUE(sparklinePoints({}, {100, 40}).isEmpty());
}

TEST(SparklineStart, IsCutByLength)
{
    const QPolygonF line({{0, 0}, {30, 40}, {60, 0}});
    EXPECT_TRUE(sparklineStart(line, 0).isEmpty());
    EXPECT_EQ(sparklineStart(line, 0.25), QPolygonF({{0, 0}, {15, 20}}));
    EXPECT_EQ(sparklineStart(line, 0.75), QPolygonF({{0, 0}, {30, 40}, {45, 20}}));
    EXPECT_EQ(sparklineStart(line, 1), line);
    EXPECT_TRUE(sparklineStart({}, 0.5).isEmpty());
}

TEST(SparklineBetween, MovesEverySampleAndStretchesAShorterPast)
{
    EXPECT_EQ(sparklineBetween({0, 1}, {1, 0}, 0.25), QList<double>({0.25, 0.75}));
    EXPECT_EQ(sparklineBetween({0, 1}, {0, 0, 0}, 0), QList<double>({0, 0.5, 1}));
    EXPECT_EQ(sparklineBetween({0, 1}, {0.3, 0.4, 0.5}, 1), QList<double>({0.3, 0.4, 0.5}));
    EXPECT_EQ(sparklineBetween({}, {0.3, 0.4}, 0), QList<double>({0.3, 0.4}));
    EXPECT_TRUE(sparklineBetween({1, 2}, {}, 0).isEmpty());
}

TEST_F(Gauge, SparklineWithFewerThanTwoSamplesDrawsNothing)
{
    const QImage empty = picture();
    Sparkline line;
    line.setReduceMotion(true);
    show(line, {100, 40});
    EXPECT_EQ(picture(), empty);
    line.setValues({0.5});
    EXPECT_EQ(picture(), empty);
}

TEST_F(Gauge, SparklineWithTwoSamplesIsOneSegmentOverTheWholeWidth)
{
    Sparkline line;
    line.setReduceMotion(true);
    line.setValues({0.5, 0.5});
    show(line, {100, 40});
    const QImage image = picture();
    for (const double x : {40.5, 70.0, 100.0, 138.5})
        EXPECT_GT(lightAt(image, {x, 60}), 150) << x;
    EXPECT_GT(lightAt(image, {90, 64}), 20) << "the area";
    EXPECT_LT(lightAt(image, {90, 56}), 5);
}

TEST_F(Gauge, SparklineHasItsAreaAtOnceAndDrawsItsLineFromTheLeft)
{
    Sparkline line;
    line.setValues({0.5, 0.5});
    show(line, {100, 40});
    const QImage first = picture();
    EXPECT_GT(lightAt(first, {45, 64}), 20);
    EXPECT_LT(lightAt(first, {45, 60}), 120) << "no line yet";
    m_time.advanceBy(0ms);
    m_time.advanceBy(225ms);
    const QImage half = picture();
    EXPECT_GT(lightAt(half, {45, 60}), 150);
    EXPECT_LT(lightAt(half, {130, 60}), 120);
    m_time.advanceBy(225ms);
    EXPECT_GT(lightAt(picture(), {135, 60}), 150);
}

TEST_F(Gauge, SparklineGlidesToNewSamples)
{
    Sparkline line;
    line.setValues({0, 0});
    show(line, {100, 40});
    m_time.advanceBy(0ms);
    m_time.advanceBy(450ms);
    line.setValues({1, 1});
    m_time.advanceBy(0ms);
    m_time.advanceBy(125ms);
    EXPECT_GT(lightAt(picture(), {90, 50}), 150) << "ease-out: three quarters of the way at half time";
    m_time.advanceBy(125ms);
    EXPECT_GT(lightAt(picture(), {90, 40}), 150);
}

TEST(RollingCells, DigitsAllTakeTheWidthOfTheWidest)
{
    QFont font;
    font.setPixelSize(28);
    const QFontMetricsF metrics(font);
    const auto ones = rollingCells(QStringLiteral("11:11"), metrics);
    const auto eights = rollingCells(QStringLiteral("88:88"), metrics);
    ASSERT_EQ(ones.size(), 5U);
    EXPECT_EQ(rollingWidth(ones), rollingWidth(eights));
    for (std::size_t i = 0; i < ones.size(); ++i)
        EXPECT_EQ(ones[i].x, eights[i].x);
    EXPECT_LT(ones[2].width, ones[1].width) << "a colon keeps its own width";
    EXPECT_TRUE(rollingCells({}, metrics).empty());
    EXPECT_EQ(rollingWidth({}), 0);
    EXPECT_EQ(rollingCells(QStringLiteral("1🎉"), metrics).size(), 2U) << "one cell for one visible character";
}

TEST(RollingScale, ShrinksToSevenTenthsAndNoFurther)
{
    EXPECT_EQ(rollingScale(100, 120), 1);
    EXPECT_EQ(rollingScale(100, 100), 1);
    EXPECT_EQ(rollingScale(100, 80), 0.8);
    EXPECT_EQ(rollingScale(100, 70), 0.7);
    EXPECT_EQ(rollingScale(100, 20), 0.7);
    EXPECT_EQ(rollingScale(0, 20), 1);
}

TEST(RollingColumns, OnlyChangedCharactersRoll)
{
    const QFontMetricsF metrics{QFont()};
    const auto rolling = [&](const char *from, const char *to) {
        std::string result;
        for (const RollingColumn &column : rollingColumns(rollingCells(QString::fromLatin1(from), metrics),
                                                          rollingCells(QString::fromLatin1(to), metrics)))
            result += column.rolls() ? 'x' : '-';
        return result;
    };
    EXPECT_EQ(rolling("12:34", "12:35"), "----x");
    EXPECT_EQ(rolling("12:59", "13:00"), "-x-xx");
    EXPECT_EQ(rolling("9:59", "10:59"), "xx---");
    EXPECT_EQ(rolling("99%", "100%"), "xxx-");
    EXPECT_EQ(rolling("100%", "7%"), "xxx-");
    EXPECT_EQ(rolling("", "7"), "x");
}

TEST_F(Gauge, NumberRollsOnlyWhenItChanges)
{
    RollingNumber number;
    number.setText(QStringLiteral("12:00"));
    show(number, {80, 30});
    EXPECT_FALSE(number.rolling()) << "the first text is simply there";
    number.setText(QStringLiteral("12:00"));
    EXPECT_FALSE(number.rolling());
    const QImage before = picture();
    number.setText(QStringLiteral("12:01"));
    EXPECT_TRUE(number.rolling());
    m_time.advanceBy(0ms);
    EXPECT_EQ(picture(), before) << "it starts from what was there";
    m_time.advanceBy(150ms);
    EXPECT_NE(picture(), before);
    m_time.advanceBy(2s);
    EXPECT_FALSE(number.rolling());
    const QImage after = picture();
    EXPECT_NE(after, before);
    m_time.advanceBy(1s);
    EXPECT_EQ(picture(), after);
}

TEST_F(Gauge, NumberChangesAtOnceUnderReducedMotion)
{
    RollingNumber number;
    number.setReduceMotion(true);
    number.setText(QStringLiteral("12:00"));
    show(number, {80, 30});
    const QImage before = picture();
    number.setText(QStringLiteral("12:01"));
    EXPECT_FALSE(number.rolling());
    const QImage after = picture();
    EXPECT_NE(after, before);
    m_time.advanceBy(2s);
    EXPECT_EQ(picture(), after);
}

TEST_F(Gauge, NumberRollsUpwards)
{
    RollingNumber number;
    QFont font;
    font.setPixelSize(40);
    number.setFont(font);
    number.setText(QStringLiteral("1"));
    show(number, {40, 50});
    number.setText(QStringLiteral("2"));
    m_time.advanceBy(0ms);
    m_time.advanceBy(60ms);
    const QImage early = picture();
    int below = 0;
    for (int y = 82; y < 92; ++y) {
        for (int x = 40; x < 80; ++x)
            below = std::max(below, lightAt(early, QPointF(x, y)));
    }
    EXPECT_GT(below, 20) << "the new digit comes from below";
}

TEST_F(Gauge, NumberHoldsItsWidthWhileDigitsChange)
{
    RollingNumber number;
    number.setText(QStringLiteral("11:11"));
    const double width = number.implicitWidth();
    number.setText(QStringLiteral("08:48"));
    EXPECT_EQ(number.implicitWidth(), width);
}

TEST_F(Gauge, NumberIsFilledFromOneCornerToTheOther)
{
    RollingNumber number;
    QFont font;
    font.setPixelSize(40);
    font.setBold(true);
    number.setFont(font);
    number.setColor(Qt::red);
    number.setGradientEnd(Qt::blue);
    number.setText(QStringLiteral("88888"));
    show(number, {number.implicitWidth(), number.implicitHeight()});
    const QImage image = picture();
    double redLeft = 0;
    double redRight = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            (x < 40 + number.width() / 2 ? redLeft : redRight) +=
                qRed(image.pixel(x, y)) - qBlue(image.pixel(x, y));
    }
    EXPECT_GT(redLeft, 0);
    EXPECT_LT(redRight, 0);
}

/// With BRIMLIGHT_PICTURES naming a folder, the gauges are left there at several sizes and moments to look
/// at.
TEST_F(Gauge, StandTogetherInQml)
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import Brimlight.Theme

        Item {
            property bool later: false
            width: 640; height: 400
            Row {
                x: 24; y: 24; spacing: 26
                Repeater {
                    model: [0, 0.04, 0.25, 0.5, 0.72, 0.9, 0.97, 1]
                    RingGauge {
                        required property double modelData
                        width: 48; height: 48; lineWidth: 6; reduceMotion: true
                        value: modelData; tint: "#0a84ff"; track: "#2e0a84ff"
                    }
                }
            }
            Row {
                x: 24; y: 100; spacing: 26
                Repeater {
                    model: [36, 42, 60, 90]
                    RingGauge {
                        required property int modelData
                        width: modelData; height: modelData; lineWidth: modelData < 60 ? 4 : 8; reduceMotion: true
                        value: 0.68; tint: "#ff9f0a"; track: "#2eff9f0a"
                        Symbol { anchors.centerIn: parent; name: "bolt.fill"; color: "white"; size: 14 }
                    }
                }
                Sparkline {
                    width: 180; height: 60; color: "#30d158"; reduceMotion: true
                    values: [0.2, 0.3, 0.25, 0.6, 0.55, 0.9, 1, 0.7, 0.4, 0.45, 0.2, 0, 0.1, 0.5]
                }
            }
            Column {
                x: 24; y: 210; spacing: 6
                RollingNumber {
                    objectName: "clock"; text: parent.parent.later ? "10:00" : "09:59"
                    font.pixelSize: 34; font.weight: Font.DemiBold; color: "white"; gradientEnd: "#0a84ff"
                    RollingNumber {
                        anchors.left: parent.right; anchors.leftMargin: 4; anchors.baseline: parent.baseline
                        text: "41"; font.pixelSize: 14; color: "#0a84ff"
                    }
                }
                RollingNumber {
                    width: 80; horizontalAlignment: Text.AlignHCenter; text: parent.parent.later ? "100%" : "99%"
                    font.pixelSize: 20; color: "white"; duration: 400; easing.type: Easing.OutQuad
                }
                RollingNumber { width: 50; text: "12:34:56"; font.pixelSize: 14; color: "white" }
            }
            Row {
                x: 220; y: 220; spacing: 12
                Repeater {
                    model: ["gearshape", "plus", "pin.fill", "cloud.sun.fill", "cloud.bolt.rain.fill", "no such name"]
                    Symbol {
                        required property string modelData
                        name: modelData; size: 22; color: "#e5e5ea"; weight: Font.DemiBold; multicolor: true
                    }
                }
            }
        })",
                      QUrl(QStringLiteral("qrc:/GaugeTest.qml")));
    const std::unique_ptr<QObject> root(component.create());
    ASSERT_TRUE(root) << qPrintable(component.errorString());
    auto *item = qobject_cast<QQuickItem *>(root.get());
    m_window.setColor(QColor(24, 24, 30));
    m_window.resize(640, 400);
    item->setParentItem(m_window.contentItem());
    auto *clock = root->findChild<RollingNumber *>(QStringLiteral("clock"));
    ASSERT_TRUE(clock);

    const QString folder = qEnvironmentVariable("BRIMLIGHT_PICTURES");
    const auto save = [&](const QString &name) {
        const QImage image = picture();
        if (!folder.isEmpty()) {
            EXPECT_TRUE(image.save(folder + name));
        }
    };
    m_time.advanceBy(0ms);
    m_time.advanceBy(1s);
    save(QStringLiteral("/gauges.png"));
    root->setProperty("later", true);
    EXPECT_TRUE(clock->rolling());
    m_time.advanceBy(0ms);
    for (const int moment : {60, 120, 180, 240}) {
        m_time.advanceBy(60ms);
        save(QStringLiteral("/rolling-%1.png").arg(moment));
    }
    m_time.advanceBy(1s);
    EXPECT_FALSE(clock->rolling());
}

} // namespace brimlight::test
