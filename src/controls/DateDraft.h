#pragma once

#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <QVariant>
#include <QtQmlIntegration>

namespace brimlight {

/// One day on the sheet of a month.
struct MonthDay
{
    Q_GADGET
    QML_VALUE_TYPE(monthDay)
    Q_PROPERTY(int day MEMBER day)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(bool isInMonth MEMBER isInMonth)
    Q_PROPERTY(bool isToday MEMBER isToday)
    Q_PROPERTY(bool isChosen MEMBER isChosen)

public:
    /// Of its month, from 1.
    int day = 0;
    /// In full, for screen readers: "Monday, 2 March 2026".
    QString name;
    bool isInMonth = true;
    bool isToday = false;
    bool isChosen = false;

    bool operator==(const MonthDay &) const = default;
};

/// A moment that is being chosen: the sheet of one month, and a time of day to the minute. What the user does
/// ends in `picked`; the moment itself changes when its owner says so. Local time.
class DateDraft : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QDateTime moment READ moment WRITE setMoment NOTIFY changed)
    Q_PROPERTY(QDateTime now READ now WRITE setNow NOTIFY changed)
    Q_PROPERTY(bool clock24h READ clock24h WRITE setClock24h NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QStringList weekdays READ weekdays CONSTANT)
    Q_PROPERTY(QVariantList days READ days NOTIFY changed)
    Q_PROPERTY(int chosenIndex READ chosenIndex NOTIFY changed)
    Q_PROPERTY(int hour READ hour NOTIFY changed)
    Q_PROPERTY(int minute READ minute NOTIFY changed)
    Q_PROPERTY(QString hourText READ hourText NOTIFY changed)
    Q_PROPERTY(QString minuteText READ minuteText NOTIFY changed)

public:
    /// Six weeks, so that the sheet keeps its height.
    static constexpr int dayCount = 42;

    using QObject::QObject;

    QDateTime moment() const { return m_moment; }
    /// Turns the sheet to its month.
    void setMoment(const QDateTime &moment);
    /// Marks today.
    QDateTime now() const { return m_now; }
    void setNow(const QDateTime &now);
    bool clock24h() const { return m_clock24h; }
    void setClock24h(bool clock24h);

    /// "March 2026", the month that is shown.
    QString title() const;
    /// Very short names, the locale's first day of the week first.
    QStringList weekdays() const;
    /// `dayCount` of MonthDay, the month that is shown with its neighbours' days around it.
    QVariantList days() const;
    /// Where among `days` the moment is; -1 while it is not on the sheet.
    int chosenIndex() const;
    int hour() const { return m_moment.time().hour(); }
    int minute() const { return m_moment.time().minute(); }
    /// "21" or "9 PM".
    QString hourText() const;
    /// "05".
    QString minuteText() const;

    /// Shows another month and picks nothing.
    Q_INVOKABLE void turn(int months);
    /// The following keep the time of day.
    Q_INVOKABLE void pickDay(int index);
    Q_INVOKABLE void moveDays(int days);
    /// The last of a month stays the last that the other month has.
    Q_INVOKABLE void moveMonths(int months);
    /// The following go round and keep the day.
    Q_INVOKABLE void pickHour(int hour);
    Q_INVOKABLE void pickMinute(int minute);

Q_SIGNALS:
    void changed();
    void picked(const QDateTime &moment);

private:
    QDate firstShown() const;
    void pick(const QDate &date, const QTime &time);

    QDateTime m_moment;
    QDateTime m_now;
    /// The first of the month that is shown.
    QDate m_month;
    bool m_clock24h = true;
};

} // namespace brimlight
