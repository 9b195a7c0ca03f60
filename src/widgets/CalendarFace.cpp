#include "widgets/CalendarFace.h"

#include "controls/Weekdays.h"

#include <QLocale>

namespace brimlight {

QList<CalendarDay> monthCells(const QDate &today, Qt::DayOfWeek firstDayOfWeek)
{
    QList<CalendarDay> cells(leadingCells(QDate(today.year(), today.month(), 1), firstDayOfWeek));
    for (int day = 1; day <= today.daysInMonth(); ++day)
        cells.append({.day = day, .isToday = day == today.day()});
    return cells;
}

QList<CalendarDay> weekCells(const QDate &today, Qt::DayOfWeek firstDayOfWeek)
{
    const QDate first = today.addDays(-leadingCells(today, firstDayOfWeek));
    QList<CalendarDay> cells;
    for (int offset = 0; offset < 7; ++offset) {
        const QDate day = first.addDays(offset);
        cells.append({.day = day.day(), .isToday = day == today});
    }
    return cells;
}

CalendarFace::CalendarFace(WidgetContext &context)
    : WidgetLogic(context)
{
    connect(this, &WidgetLogic::changed, this, &CalendarFace::follow);
    follow();
}

QString CalendarFace::title() const
{
    return QLocale().toString(m_today, QStringLiteral("MMMM yyyy"));
}

QStringList CalendarFace::weekdays() const
{
    return weekdayLetters(QLocale());
}

QVariantList CalendarFace::cells() const
{
    const Qt::DayOfWeek first = QLocale().firstDayOfWeek();
    const QList<CalendarDay> days = m_week ? weekCells(m_today, first) : monthCells(m_today, first);
    QVariantList list;
    for (const CalendarDay &day : days)
        list.append(QVariant::fromValue(day));
    return list;
}

void CalendarFace::follow()
{
    const QDate today = now().toLocalTime().date();
    if (today == m_today && showsWeek() == m_week)
        return;
    m_today = today;
    m_week = showsWeek();
    Q_EMIT dayChanged();
}

} // namespace brimlight
