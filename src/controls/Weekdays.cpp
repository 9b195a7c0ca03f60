#include "controls/Weekdays.h"

#include <QLocale>

namespace brimlight {

int leadingCells(const QDate &day, Qt::DayOfWeek firstDayOfWeek)
{
    return (day.dayOfWeek() - firstDayOfWeek + 7) % 7;
}

QStringList weekdayLetters(const QLocale &locale)
{
    QStringList names;
    for (int offset = 0; offset < 7; ++offset) {
        const int day = (locale.firstDayOfWeek() - 1 + offset) % 7 + 1;
        names.append(locale.standaloneDayName(day, QLocale::NarrowFormat).left(2));
    }
    return names;
}

} // namespace brimlight
