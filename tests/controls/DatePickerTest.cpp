#include "controls/ControlsFixture.h"

#include <QDateTime>
#include <QLocale>

namespace brimlight::test {
namespace {

class DatePicker : public ControlsTest
{
protected:
    DatePicker() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    ~DatePicker() override { QLocale::setDefault(before); }

    void SetUp() override
    {
        show("property date at: new Date(2026, 2, 10, 9, 30)\n"
             "DatePicker { x: 10; y: 10; width: 200; moment: root.at; now: new Date(2026, 2, 12); colors: "
             "root.colors; "
             "onPicked: moment => root.at = moment }");
    }
    QDateTime at() const { return view.rootObject()->property("at").toDateTime(); }
    const QQuickItem *day(const QString &name) const
    {
        for (const QQuickItem *cell : scene.withRole(QAccessible::Cell)) {
            if (cell->property("label") == name)
                return cell;
        }
        return nullptr;
    }

    QLocale before;
};

} // namespace

TEST_F(DatePicker, ADayIsChosenByTheMouse)
{
    const QQuickItem *cell = day(QStringLiteral("Friday, 20 March 2026"));
    ASSERT_TRUE(cell) << "cells say their day in full";
    scene.click(*cell);
    EXPECT_EQ(at(), QDateTime(QDate(2026, 3, 20), QTime(9, 30)));
}

TEST_F(DatePicker, ItsArrowsTurnTheMonth)
{
    const QQuickItem *next = scene.button(QStringLiteral("Next month"));
    const QQuickItem *previous = scene.button(QStringLiteral("Previous month"));
    ASSERT_TRUE(next && previous);
    scene.click(*next);
    EXPECT_EQ(scene.namesOf(QAccessible::Heading), QStringList{QStringLiteral("April 2026")});
    scene.click(*previous);
    scene.click(*previous);
    EXPECT_EQ(scene.namesOf(QAccessible::Heading), QStringList{QStringLiteral("February 2026")});
    EXPECT_EQ(at().date(), QDate(2026, 3, 10)) << "looking is not choosing";
}

TEST_F(DatePicker, TheSheetIsOneStopWhereArrowsGoByDaysAndWeeks)
{
    QQuickItem *sheet = scene.withRole(QAccessible::Table).value(0);
    ASSERT_TRUE(sheet);
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    EXPECT_TRUE(sheet->hasActiveFocus());
    EXPECT_TRUE(marks(*sheet));
    key(Qt::Key_Right);
    key(Qt::Key_Down);
    EXPECT_EQ(at().date(), QDate(2026, 3, 18));
    key(Qt::Key_PageDown);
    EXPECT_EQ(at().date(), QDate(2026, 4, 18));
    key(Qt::Key_Left);
    key(Qt::Key_Up);
    EXPECT_EQ(at(), QDateTime(QDate(2026, 4, 10), QTime(9, 30)));
}

TEST_F(DatePicker, TheTimeIsSteppedAndGoesRound)
{
    const QList<QQuickItem *> steppers = scene.withRole(QAccessible::SpinBox);
    ASSERT_EQ(steppers.size(), 2);
    steppers.at(0)->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Down);
    EXPECT_EQ(at().time(), QTime(8, 30));
    steppers.at(1)->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_End);
    key(Qt::Key_Up);
    EXPECT_EQ(at(), QDateTime(QDate(2026, 3, 10), QTime(8, 0)));
}

} // namespace brimlight::test
