#pragma once

#include <QDate>
#include <QStringList>

class QLocale;

namespace brimlight {

/// Empty cells before the first of a month on a sheet that begins with `firstDayOfWeek`: (weekday -
/// firstDayOfWeek + 7) modulo 7. As well the days from the beginning of a week to a day of it.
int leadingCells(const QDate &day, Qt::DayOfWeek firstDayOfWeek);
/// Very short names of the seven days, the locale's first day of the week first.
QStringList weekdayLetters(const QLocale &locale);

} // namespace brimlight
