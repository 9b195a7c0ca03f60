#pragma once

#include "grid/WidgetLogic.h"

#include <QTimeZone>
#include <QVariant>

namespace brimlight {

/// One place as the world clock shows it.
struct WorldClockPlace
{
    Q_GADGET
    QML_VALUE_TYPE(worldClockPlace)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(bool isDay MEMBER isDay)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString time MEMBER time)

public:
    QString label;
    bool isDay = false;
    QString symbol;
    QString time;

    bool operator==(const WorldClockPlace &) const = default;
};

/// It is day from 6:00 until before 19:00.
bool isDaytime(const QDateTime &date, const QTimeZone &zone);
/// How many places a size shows, and how far apart they stand.
int worldClockPlaces(WidgetSize size);
int worldClockSpacing(WidgetSize size);

/// The rows of the world clock: a fixed list of places.
class WorldClockFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(int spacing READ spacing NOTIFY changed)
    Q_PROPERTY(QVariantList places READ places NOTIFY changed)

public:
    using WidgetLogic::WidgetLogic;

    int count() const { return worldClockPlaces(size()); }
    int spacing() const { return worldClockSpacing(size()); }
    /// Of WorldClockPlace, `count` of them.
    QVariantList places() const;
};

} // namespace brimlight
