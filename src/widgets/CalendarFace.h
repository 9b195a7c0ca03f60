#pragma once

#include "grid/WidgetLogic.h"

#include <QVariant>

namespace brimlight {

/// One cell of the calendar; an empty one has day 0.
struct CalendarDay
{
    Q_GADGET
    QML_VALUE_TYPE(calendarDay)
    Q_PROPERTY(int day MEMBER day)
    Q_PROPERTY(bool isToday MEMBER isToday)

public:
    int day = 0;
    bool isToday = false;

    bool operator==(const CalendarDay &) const = default;
};

/// The month of `today`, with its empty cells in front.
QList<CalendarDay> monthCells(const QDate &today, Qt::DayOfWeek firstDayOfWeek);
/// The week of `today`.
QList<CalendarDay> weekCells(const QDate &today, Qt::DayOfWeek firstDayOfWeek);

/// What the calendar shows: a strip of the week on a wide tile, the month otherwise.
class CalendarFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(bool showsWeek READ showsWeek NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY dayChanged)
    Q_PROPERTY(QStringList weekdays READ weekdays CONSTANT)
    Q_PROPERTY(QVariantList cells READ cells NOTIFY dayChanged)

public:
    explicit CalendarFace(WidgetContext &context);

    bool showsWeek() const { return size() == WidgetSize::wide; }
    /// "March 2026".
    QString title() const;
    /// Very short names, the locale's first day of the week first.
    QStringList weekdays() const;
    /// Of CalendarDay.
    QVariantList cells() const;

Q_SIGNALS:
    /// Unlike `changed` not at every tick: rebuilding some forty cells a second would cost what it shows.
    void dayChanged();

private:
    void follow();

    QDate m_today;
    bool m_week = false;
};

} // namespace brimlight
