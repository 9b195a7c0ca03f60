#pragma once

#include "core/Formats.h"
#include "grid/WidgetLogic.h"

namespace brimlight {

enum class CalendarPeriod { day, week, month };

/// How much of the period that contains `date` has passed, from 0 to 1, in the date's own time zone; 0 for an
/// invalid date. Weeks begin with `firstDayOfWeek`.
double fractionOfPeriod(CalendarPeriod period, const QDateTime &date, Qt::DayOfWeek firstDayOfWeek);

/// What the day progress widget shows.
class DayProgressFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(double day READ day NOTIFY changed)
    Q_PROPERTY(double week READ week NOTIFY changed)
    Q_PROPERTY(double month READ month NOTIFY changed)
    Q_PROPERTY(QString dayText READ dayText NOTIFY changed)
    Q_PROPERTY(QString weekText READ weekText NOTIFY changed)
    Q_PROPERTY(QString monthText READ monthText NOTIFY changed)

public:
    using WidgetLogic::WidgetLogic;

    double day() const { return fraction(CalendarPeriod::day); }
    double week() const { return fraction(CalendarPeriod::week); }
    double month() const { return fraction(CalendarPeriod::month); }
    QString dayText() const { return formats::percentCut(day()); }
    QString weekText() const { return formats::percentCut(week()); }
    QString monthText() const { return formats::percentCut(month()); }

private:
    double fraction(CalendarPeriod period) const;
};

} // namespace brimlight
