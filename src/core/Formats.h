#pragma once

#include <QString>

#include <cstdint>

namespace brimlight {

/// Numbers as the widgets write them, the same in every language: a point before decimals and no groups of
/// digits. Each text is made here and nowhere else. Numbers are finite.
namespace formats {

/// "37%", rounded; 1 is a hundred percent.
QString percent(double fraction);
/// "37%", cut to a whole number: "99%" for 0.999. `rounding` is what a value may be short of the next percent
/// and yet count as it, in percent: 0.29 is stored a little below itself.
QString percentCut(double fraction, double rounding = 1e-9);
/// "37%" for 37.
QString percentNumber(int64_t percent);

/// A temperature as a whole number of degrees Celsius or, if not, Fahrenheit.
int64_t wholeDegrees(double celsius, bool inCelsius);
/// "55°", without the letter of the unit.
QString degrees(double celsius, bool inCelsius);

/// Decimal gigabytes: "512 GB", "99.9 GB"; a decimal below 100.
QString gigabytes(int64_t bytes);

/// "3.4 MB/s", "12 KB/s", "999 B/s".
QString rate(double bytesPerSecond);
/// The same without its unit: "3.4M", "12K", "999".
QString compactRate(double bytesPerSecond);

/// "3d 4h", "4h 12m" or "12m".
QString daysHoursMinutes(int64_t seconds);
/// "4:05".
QString hoursAndMinutes(int minutes);

} // namespace formats
} // namespace brimlight
