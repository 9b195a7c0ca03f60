#include "platform/linux/dbus/PortalSettings.h"

#include <QDBusArgument>
#include <QDBusVariant>

namespace brimlight {
namespace {

enum class Wish { lessMotion, lessTransparency, dark };

struct Rule
{
    const char *group;
    const char *key;
    Wish wish;
    bool (*asks)(const QVariant &value);
};

bool isInteger(const QVariant &value, int wanted)
{
    const int type = value.typeId();
    return (type == QMetaType::UInt || type == QMetaType::Int) && value.toLongLong() == wanted;
}

bool isBool(const QVariant &value, bool wanted)
{
    return value.typeId() == QMetaType::Bool && value.toBool() == wanted;
}

/// Numbers of this desktop come as text.
bool isZero(const QVariant &value)
{
    bool isNumber = false;
    return value.toDouble(&isNumber) == 0 && isNumber;
}

constexpr std::array rules{
    Rule{"org.freedesktop.appearance", "reduced-motion", Wish::lessMotion,
         [](const QVariant &value) { return isInteger(value, 1); }},
    Rule{"org.gnome.desktop.interface", "enable-animations", Wish::lessMotion,
         [](const QVariant &value) { return isBool(value, false); }},
    Rule{"org.kde.kdeglobals.KDE", "AnimationDurationFactor", Wish::lessMotion, isZero},
    Rule{"org.freedesktop.appearance", "contrast", Wish::lessTransparency,
         [](const QVariant &value) { return isInteger(value, 1); }},
    Rule{"org.gnome.desktop.a11y.interface", "high-contrast", Wish::lessTransparency,
         [](const QVariant &value) { return isBool(value, true); }},
    Rule{"org.freedesktop.appearance", "color-scheme", Wish::dark,
         [](const QVariant &value) { return isInteger(value, 1); }},
};

template<size_t Count>
bool anyAsks(const std::array<bool, Count> &asked, Wish wish)
{
    static_assert(rules.size() == Count);
    for (size_t i = 0; i < Count; ++i) {
        if (asked[i] && rules[i].wish == wish)
            return true;
    }
    return false;
}

/// Some portals wrap a value twice.
QVariant unwrapped(QVariant value)
{
    constexpr int deepest = 4;
    for (int i = 0; i < deepest && value.metaType() == QMetaType::fromType<QDBusVariant>(); ++i)
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

std::optional<PortalValues> portalValues(const QVariantList &reply)
{
    if (reply.size() != 1 || reply.first().metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto argument = reply.first().value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("a{sa{sv}}"))
        return std::nullopt;
    PortalValues values;
    argument >> values;
    return values;
}

QStringList AppearanceWishes::groups()
{
    QStringList names;
    for (const Rule &rule : rules)
        names.append(QString::fromLatin1(rule.group));
    names.removeDuplicates();
    return names;
}

AppearanceWishes AppearanceWishes::of(const PortalValues &values)
{
    AppearanceWishes wishes;
    for (auto group = values.begin(); group != values.end(); ++group) {
        for (auto setting = group->begin(); setting != group->end(); ++setting)
            wishes.set(group.key(), setting.key(), setting.value());
    }
    return wishes;
}

void AppearanceWishes::set(const QString &group, const QString &key, const QVariant &value)
{
    for (size_t i = 0; i < ruleCount; ++i) {
        if (group == QLatin1String(rules[i].group) && key == QLatin1String(rules[i].key))
            m_asked[i] = rules[i].asks(unwrapped(value));
    }
}

bool AppearanceWishes::lessMotion() const
{
    return anyAsks(m_asked, Wish::lessMotion);
}

bool AppearanceWishes::lessTransparency() const
{
    return anyAsks(m_asked, Wish::lessTransparency);
}

bool AppearanceWishes::dark() const
{
    return anyAsks(m_asked, Wish::dark);
}

} // namespace brimlight
