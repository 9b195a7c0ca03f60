#include "widgets/WorldClockFace.h"

#include <array>

namespace brimlight {
namespace {

struct Place
{
    const char16_t *label;
    /// Null for the system's zone.
    const char *zone;
};

constexpr std::array knownPlaces{Place{u"Local", nullptr}, Place{u"New York", "America/New_York"},
                                 Place{u"London", "Europe/London"}, Place{u"Tokyo", "Asia/Tokyo"}};

} // namespace

bool isDaytime(const QDateTime &date, const QTimeZone &zone)
{
    const int hour = date.toTimeZone(zone).time().hour();
    return hour >= 6 && hour < 19;
}

int worldClockPlaces(WidgetSize size)
{
    if (size == WidgetSize::large || size == WidgetSize::huge)
        return 4;
    return size == WidgetSize::tall ? 3 : 2;
}

int worldClockSpacing(WidgetSize size)
{
    if (size == WidgetSize::large)
        return 8;
    return size == WidgetSize::tall ? 7 : 6;
}

QVariantList WorldClockFace::places() const
{
    QVariantList list;
    for (int i = 0; i < count(); ++i) {
        const Place &place = knownPlaces[static_cast<size_t>(i)];
        const QTimeZone zone = place.zone ? QTimeZone(place.zone) : QTimeZone::systemTimeZone();
        const bool day = isDaytime(now(), zone);
        list.append(QVariant::fromValue(WorldClockPlace{.label = QString::fromUtf16(place.label),
                                                        .isDay = day,
                                                        .symbol = day ? QStringLiteral("sun.max.fill")
                                                                      : QStringLiteral("moon.stars.fill"),
                                                        .time = settings().hourMinute(now(), zone)}));
    }
    return list;
}

} // namespace brimlight
