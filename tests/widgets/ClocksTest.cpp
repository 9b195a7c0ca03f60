#include "controls/Weekdays.h"
#include "widgets/AnalogClockFace.h"
#include "widgets/CalendarFace.h"
#include "widgets/ClockFace.h"
#include "widgets/DayProgressFace.h"
#include "widgets/WorldClockFace.h"

#include "widgets/WidgetFixture.h"

namespace brimlight::test {

class Clock : public WidgetTest
{
protected:
    void set(const QString &key, const QString &value)
    {
        WidgetInstance instance{.kind = QStringLiteral("clock"), .size = WidgetSize::wide};
        instance.settings = WidgetSettings{{key, value}};
        context.setInstance(instance);
    }

    ClockFace face{context};
};

TEST_F(Clock, OutsideOfATileTheOptionsHaveTheirDefaults)
{
    EXPECT_EQ(face.font(), QStringLiteral("rounded"));
    EXPECT_EQ(face.style(), QStringLiteral("gradient"));
}

TEST_F(Clock, OnlyTheExactValuesOfTheOptionsCount)
{
    set(QStringLiteral("style"), QStringLiteral("rainbow"));
    EXPECT_EQ(face.style(), QStringLiteral("gradient"));
    set(QStringLiteral("style"), QStringLiteral("solid"));
    EXPECT_EQ(face.style(), QStringLiteral("solid"));
    set(QStringLiteral("font"), QStringLiteral("Mono"));
    EXPECT_EQ(face.font(), QStringLiteral("rounded"));
    set(QStringLiteral("font"), QStringLiteral("monospaced"));
    EXPECT_EQ(face.font(), QStringLiteral("monospaced"));
}

TEST_F(Clock, A24HourClockHasNoMarker)
{
    context.setSize(WidgetSize::wide);
    EXPECT_EQ(face.meridiem(), QString());
    settings.setClock24h(false);
    EXPECT_NE(face.meridiem(), QString());
}

TEST_F(Clock, ASmallOneShowsTheTimeAlone)
{
    settings.setClock24h(false);
    settings.setShowSeconds(true);
    context.setSize(WidgetSize::small);
    EXPECT_NE(face.time(), QString());
    EXPECT_EQ(face.seconds(), QString());
    EXPECT_EQ(face.meridiem(), QString());
    EXPECT_EQ(face.date(), QString());
}

TEST_F(Clock, SecondsFollowTheSetting)
{
    context.setSize(WidgetSize::wide);
    EXPECT_EQ(face.seconds().size(), 2);
    settings.setShowSeconds(false);
    EXPECT_EQ(face.seconds(), QString());
}

TEST_F(Clock, FontSizesFollowTheTile)
{
    const QList<std::pair<WidgetSize, int>> rows{
        {WidgetSize::small, 20},  {WidgetSize::tall, 28},     {WidgetSize::wide, 28}, {WidgetSize::large, 28},
        {WidgetSize::banner, 34}, {WidgetSize::wideTall, 34}, {WidgetSize::huge, 28}};
    for (const auto &[size, points] : rows) {
        context.setSize(size);
        EXPECT_EQ(face.fontSize(), points) << qPrintable(rawValue(size));
    }
}

TEST_F(Clock, ChangesOnTicksOnlyWhileItCanBeSeen)
{
    int changes = 0;
    QObject::connect(&face, &WidgetLogic::changed, [&] { ++changes; });
    ticker.setActive(true);
    EXPECT_EQ(changes, 0);
    context.setLive(true);
    changes = 0;
    scheduler.advance(std::chrono::seconds(3));
    EXPECT_EQ(changes, 3);
}

TEST(AnalogClock, HandsStandWhereTheTimeSays)
{
    EXPECT_EQ(ClockHands::at(QTime(12, 30)), (ClockHands{.hour = 15, .minute = 180, .second = 0}));
    EXPECT_EQ(ClockHands::at(QTime(0, 0)), (ClockHands{}));
    EXPECT_EQ(ClockHands::at(QTime(21, 0, 15)).second, 90);
    EXPECT_DOUBLE_EQ(ClockHands::at(QTime(3, 0, 30)).minute, 3);
}

TEST(WorldClock, DayLastsFromSixUntilNineteen)
{
    const QTimeZone tokyo("Asia/Tokyo");
    const auto at = [&](int hour, int minute) {
        return QDateTime(QDate(2026, 3, 14), QTime(hour, minute), tokyo).toUTC();
    };
    EXPECT_FALSE(isDaytime(at(5, 59), tokyo));
    EXPECT_TRUE(isDaytime(at(6, 0), tokyo));
    EXPECT_TRUE(isDaytime(at(18, 59), tokyo));
    EXPECT_FALSE(isDaytime(at(19, 0), tokyo));
}

TEST(WorldClock, PlacesAndSpacingFollowTheTile)
{
    EXPECT_EQ(worldClockPlaces(WidgetSize::wide), 2);
    EXPECT_EQ(worldClockPlaces(WidgetSize::tall), 3);
    EXPECT_EQ(worldClockPlaces(WidgetSize::large), 4);
    EXPECT_EQ(worldClockPlaces(WidgetSize::huge), 4);
    EXPECT_EQ(worldClockSpacing(WidgetSize::large), 8);
    EXPECT_EQ(worldClockSpacing(WidgetSize::tall), 7);
    EXPECT_EQ(worldClockSpacing(WidgetSize::huge), 6);
}

class WorldClocks : public WidgetTest
{
};

TEST_F(WorldClocks, ShowTheSunByDayAndTheMoonByNight)
{
    WorldClockFace face(context);
    context.setSize(WidgetSize::large);
    const QVariantList places = face.places();
    ASSERT_EQ(places.size(), 4);
    EXPECT_EQ(places[0].value<WorldClockPlace>().label, QStringLiteral("Local"));
    for (const QVariant &variant : places) {
        const auto place = variant.value<WorldClockPlace>();
        EXPECT_EQ(place.symbol,
                  place.isDay ? QStringLiteral("sun.max.fill") : QStringLiteral("moon.stars.fill"));
        EXPECT_EQ(place.time.size(), 5);
    }
    EXPECT_EQ(places[3].value<WorldClockPlace>().time, QStringLiteral("18:26")) << "9:26 UTC in Tokyo";
}

TEST(DayProgress, FractionsOfDayWeekAndMonth)
{
    const QDateTime noon(QDate(2026, 4, 16), QTime(12, 0), QTimeZone::utc());
    EXPECT_DOUBLE_EQ(fractionOfPeriod(CalendarPeriod::day, noon, Qt::Monday), 0.5);
    EXPECT_DOUBLE_EQ(fractionOfPeriod(CalendarPeriod::week, noon, Qt::Monday), 3.5 / 7);
    EXPECT_DOUBLE_EQ(fractionOfPeriod(CalendarPeriod::week, noon, Qt::Sunday), 4.5 / 7);
    EXPECT_DOUBLE_EQ(fractionOfPeriod(CalendarPeriod::month, noon, Qt::Monday), 15.5 / 30);
}

TEST(DayProgress, ADayOfTwentyThreeHoursIsWhole)
{
    const QTimeZone berlin("Europe/Berlin");
    const QDateTime noon(QDate(2026, 3, 29), QTime(12, 0), berlin);
    EXPECT_NEAR(fractionOfPeriod(CalendarPeriod::day, noon, Qt::Monday), 11.0 / 23, 1e-9);
}

TEST(DayProgress, WithoutADateTheFractionIsZero)
{
    EXPECT_EQ(fractionOfPeriod(CalendarPeriod::day, QDateTime(), Qt::Monday), 0);
}

TEST(Calendar, AMonthThatBeginsOnASundayLeavesSixCellsWhenMondayIsFirst)
{
    const QDate sunday(2026, 3, 1);
    EXPECT_EQ(leadingCells(sunday, Qt::Monday), 6);
    EXPECT_EQ(leadingCells(sunday, Qt::Sunday), 0);
}

TEST(Calendar, TheMonthHoldsItsDaysAndToday)
{
    const QList<CalendarDay> cells = monthCells(QDate(2026, 2, 14), Qt::Monday);
    EXPECT_EQ(cells.size(), 6 + 28);
    EXPECT_EQ(cells[5], CalendarDay{});
    EXPECT_EQ(cells[6], (CalendarDay{.day = 1}));
    EXPECT_EQ(cells[19], (CalendarDay{.day = 14, .isToday = true}));
}

TEST(Calendar, TheWeekRunsOverTheEndOfTheMonth)
{
    const QList<CalendarDay> cells = weekCells(QDate(2026, 4, 1), Qt::Monday);
    ASSERT_EQ(cells.size(), 7);
    EXPECT_EQ(cells[0], (CalendarDay{.day = 30}));
    EXPECT_EQ(cells[2], (CalendarDay{.day = 1, .isToday = true}));
}

class Calendars : public WidgetTest
{
};

TEST_F(Calendars, AWideTileShowsTheWeekAndIsRebuiltOncePerDay)
{
    CalendarFace face(context);
    int rebuilt = 0;
    QObject::connect(&face, &CalendarFace::dayChanged, [&] { ++rebuilt; });
    context.setSize(WidgetSize::wide);
    context.setLive(true);
    EXPECT_TRUE(face.showsWeek());
    EXPECT_EQ(face.cells().size(), 7);
    rebuilt = 0;
    ticker.setActive(true);
    scheduler.advance(std::chrono::minutes(1));
    EXPECT_EQ(rebuilt, 0);
    scheduler.advance(std::chrono::hours(24));
    EXPECT_EQ(rebuilt, 1);
    context.setSize(WidgetSize::large);
    EXPECT_GE(face.cells().size(), 28);
    EXPECT_EQ(face.weekdays().size(), 7);
}

} // namespace brimlight::test
