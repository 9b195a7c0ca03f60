#include "controls/DateDraft.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <QSignalSpy>

namespace brimlight::test {
namespace {

class DateDraftTest : public testing::Test
{
protected:
    DateDraftTest() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    ~DateDraftTest() override { QLocale::setDefault(before); }

    /// As its owner does: what is picked becomes the moment.
    void follow() { QObject::connect(&draft, &DateDraft::picked, &draft, &DateDraft::setMoment); }
    void set(int year, int month, int day, int hour = 9, int minute = 30)
    {
        draft.setMoment(QDateTime(QDate(year, month, day), QTime(hour, minute)));
    }
    MonthDay day(int index) const { return draft.days().at(index).value<MonthDay>(); }

    QLocale before;
    DateDraft draft;
};

} // namespace

TEST_F(DateDraftTest, TheSheetHasSixWeeksFromTheLocalesFirstDay)
{
    set(2026, 3, 10);
    EXPECT_EQ(draft.title(), QStringLiteral("March 2026"));
    EXPECT_EQ(draft.days().size(), DateDraft::dayCount);
    // The first of March 2026 is a Sunday, the last day of a week here.
    EXPECT_EQ(day(0).day, 23);
    EXPECT_FALSE(day(0).isInMonth);
    EXPECT_EQ(day(6).day, 1);
    EXPECT_TRUE(day(6).isInMonth);
    EXPECT_EQ(draft.chosenIndex(), 15);
    EXPECT_TRUE(day(15).isChosen);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(day(0).day, 1);
    EXPECT_EQ(draft.weekdays().constFirst(), QStringLiteral("S"));
}

TEST_F(DateDraftTest, WithoutAMomentThereIsNothing)
{
    QSignalSpy picked(&draft, &DateDraft::picked);
    EXPECT_TRUE(draft.days().isEmpty());
    EXPECT_EQ(draft.chosenIndex(), -1);
    draft.pickDay(3);
    draft.moveDays(1);
    draft.turn(1);
    EXPECT_TRUE(picked.isEmpty());
}

TEST_F(DateDraftTest, TurningShowsAnotherMonthAndPicksNothing)
{
    set(2026, 12, 31);
    QSignalSpy picked(&draft, &DateDraft::picked);
    draft.turn(2);
    EXPECT_EQ(draft.title(), QStringLiteral("February 2027"));
    EXPECT_EQ(draft.chosenIndex(), -1);
    EXPECT_TRUE(picked.isEmpty());
    EXPECT_EQ(draft.moment().date(), QDate(2026, 12, 31));
}

TEST_F(DateDraftTest, ADayKeepsTheTimeAndMayBeOneOfAnotherMonth)
{
    set(2026, 3, 10, 21, 45);
    follow();
    draft.pickDay(0);
    EXPECT_EQ(draft.moment(), QDateTime(QDate(2026, 2, 23), QTime(21, 45)));
    EXPECT_EQ(draft.title(), QStringLiteral("February 2026"));
    draft.pickDay(-1);
    draft.pickDay(DateDraft::dayCount);
    EXPECT_EQ(draft.moment().date(), QDate(2026, 2, 23));
}

TEST_F(DateDraftTest, MonthsEndWhereTheyEnd)
{
    set(2024, 1, 31);
    follow();
    draft.moveMonths(1);
    EXPECT_EQ(draft.moment().date(), QDate(2024, 2, 29));
    draft.moveDays(1);
    EXPECT_EQ(draft.moment().date(), QDate(2024, 3, 1));
    draft.moveDays(-7);
    EXPECT_EQ(draft.moment().date(), QDate(2024, 2, 23));
}

TEST_F(DateDraftTest, HoursAndMinutesGoRoundAndLeaveTheDay)
{
    set(2026, 3, 10, 23, 59);
    follow();
    draft.pickHour(24);
    EXPECT_EQ(draft.moment(), QDateTime(QDate(2026, 3, 10), QTime(0, 59)));
    draft.pickHour(-1);
    draft.pickMinute(60);
    EXPECT_EQ(draft.moment(), QDateTime(QDate(2026, 3, 10), QTime(23, 0)));
    draft.pickMinute(-1);
    EXPECT_EQ(draft.minuteText(), QStringLiteral("59"));
}

TEST_F(DateDraftTest, TheHourIsWrittenAsTheUserWantsIt)
{
    set(2026, 3, 10, 21, 5);
    EXPECT_EQ(draft.hourText(), QStringLiteral("21"));
    EXPECT_EQ(draft.minuteText(), QStringLiteral("05"));
    draft.setClock24h(false);
    EXPECT_EQ(draft.hourText(), QStringLiteral("9 PM"));
    set(2026, 3, 10, 0, 5);
    EXPECT_EQ(draft.hourText(), QStringLiteral("12 AM"));
}

TEST_F(DateDraftTest, OnlyAnotherDayMarksAnotherToday)
{
    set(2026, 3, 10);
    draft.setNow(QDateTime(QDate(2026, 3, 1), QTime(23, 59, 58)));
    EXPECT_TRUE(day(6).isToday);
    QSignalSpy changed(&draft, &DateDraft::changed);
    draft.setNow(QDateTime(QDate(2026, 3, 1), QTime(23, 59, 59)));
    EXPECT_TRUE(changed.isEmpty()) << "a tick rebuilds nothing";
    draft.setNow(QDateTime(QDate(2026, 3, 2), QTime(0, 0)));
    EXPECT_EQ(changed.size(), 1);
    EXPECT_FALSE(day(6).isToday);
    EXPECT_TRUE(day(7).isToday);
}

} // namespace brimlight::test
