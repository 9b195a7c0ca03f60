#include "controls/DateDraft.h"

#include "controls/Weekdays.h"

#include <QLocale>

namespace brimlight {
namespace {

QDate firstOfMonth(const QDate &date)
{
    return {date.year(), date.month(), 1};
}

int wrapped(int value, int count)
{
    return (value % count + count) % count;
}

} // namespace

void DateDraft::setMoment(const QDateTime &moment)
{
    if (moment == m_moment)
        return;
    m_moment = moment.toLocalTime();
    m_month = firstOfMonth(m_moment.date());
    Q_EMIT changed();
}

void DateDraft::setNow(const QDateTime &now)
{
    const QDateTime local = now.toLocalTime();
    // A clock that ticks must not rebuild the sheet.
    const bool isSameDay = local.date() == m_now.date();
    m_now = local;
    if (!isSameDay)
        Q_EMIT changed();
}

void DateDraft::setClock24h(bool clock24h)
{
    m_clock24h = clock24h;
    Q_EMIT changed();
}

QString DateDraft::title() const
{
    return QLocale().toString(m_month, QStringLiteral("MMMM yyyy"));
}

QStringList DateDraft::weekdays() const
{
    return weekdayLetters(QLocale());
}

QVariantList DateDraft::days() const
{
    QVariantList list;
    if (!m_month.isValid())
        return list;
    const QLocale locale;
    const QDate first = firstShown();
    for (int offset = 0; offset < dayCount; ++offset) {
        const QDate date = first.addDays(offset);
        list.append(QVariant::fromValue(MonthDay{.day = date.day(),
                                                 .name = locale.toString(date, QLocale::LongFormat),
                                                 .isInMonth = date.month() == m_month.month(),
                                                 .isToday = date == m_now.date(),
                                                 .isChosen = date == m_moment.date()}));
    }
    return list;
}

int DateDraft::chosenIndex() const
{
    const qint64 index = m_month.isValid() ? firstShown().daysTo(m_moment.date()) : -1;
    return index >= 0 && index < dayCount ? static_cast<int>(index) : -1;
}

QString DateDraft::hourText() const
{
    // Format letters for twelve hours need the half of the day beside them.
    return m_moment.time().toString(m_clock24h ? QStringLiteral("HH") : QStringLiteral("h AP"));
}

QString DateDraft::minuteText() const
{
    return m_moment.time().toString(QStringLiteral("mm"));
}

void DateDraft::turn(int months)
{
    if (!m_month.isValid())
        return;
    m_month = m_month.addMonths(months);
    Q_EMIT changed();
}

void DateDraft::pickDay(int index)
{
    if (m_month.isValid() && index >= 0 && index < dayCount)
        pick(firstShown().addDays(index), m_moment.time());
}

void DateDraft::moveDays(int days)
{
    pick(m_moment.date().addDays(days), m_moment.time());
}

void DateDraft::moveMonths(int months)
{
    pick(m_moment.date().addMonths(months), m_moment.time());
}

void DateDraft::pickHour(int hour)
{
    pick(m_moment.date(), QTime(wrapped(hour, 24), minute()));
}

void DateDraft::pickMinute(int minute)
{
    pick(m_moment.date(), QTime(hour(), wrapped(minute, 60)));
}

QDate DateDraft::firstShown() const
{
    return m_month.addDays(-leadingCells(m_month, QLocale().firstDayOfWeek()));
}

void DateDraft::pick(const QDate &date, const QTime &time)
{
    if (!m_moment.isValid() || !date.isValid())
        return;
    // Seconds are nobody's choice.
    Q_EMIT picked(QDateTime(date, QTime(time.hour(), time.minute())));
}

} // namespace brimlight
