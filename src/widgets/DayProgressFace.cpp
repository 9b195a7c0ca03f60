#include "widgets/DayProgressFace.h"

#include <QLocale>

#include <algorithm>

namespace brimlight {
namespace {

struct Span
{
    QDate first;
    /// The day after the last.
    QDate end;
};

Span spanOf(CalendarPeriod period, const QDate &day, Qt::DayOfWeek firstDayOfWeek)
{
    switch (period) {
    case CalendarPeriod::day:
        return {day, day.addDays(1)};
    case CalendarPeriod::week: {
        const QDate first = day.addDays(-((day.dayOfWeek() - firstDayOfWeek + 7) % 7));
        return {first, first.addDays(7)};
    }
    case CalendarPeriod::month: {
        const QDate first(day.year(), day.month(), 1);
        return {first, first.addMonths(1)};
    }
    }
    Q_UNREACHABLE();
}

/// The first moment of a day in the zone of `like`, which need not be midnight.
QDateTime startOfDay(const QDate &day, const QDateTime &like)
{
    return day.startOfDay(like.timeZone());
}

} // namespace

double fractionOfPeriod(CalendarPeriod period, const QDateTime &date, Qt::DayOfWeek firstDayOfWeek)
{
    if (!date.isValid())
        return 0;
    const Span span = spanOf(period, date.date(), firstDayOfWeek);
    const QDateTime start = startOfDay(span.first, date);
    const qint64 length = start.msecsTo(startOfDay(span.end, date));
    if (length <= 0)
        return 0;
    return std::clamp(static_cast<double>(start.msecsTo(date)) / static_cast<double>(length), 0.0, 1.0);
}

double DayProgressFace::fraction(CalendarPeriod period) const
{
    return fractionOfPeriod(period, now().toLocalTime(), QLocale().firstDayOfWeek());
}

} // namespace brimlight
