#pragma once

#include <QMap>
#include <QStringList>
#include <QVariantMap>

#include <array>
#include <optional>

namespace brimlight {

/// By group and key, as the desktop portal gives them.
using PortalValues = QMap<QString, QVariantMap>;

/// The first argument of the portal's answer about all settings; absent when it has another shape.
std::optional<PortalValues> portalValues(const QVariantList &reply);

/// What the settings of several desktops ask for, put together: one that asks is enough, and one that is
/// missing or of an unexpected type does not ask.
class AppearanceWishes
{
public:
    /// The groups of settings that are looked at.
    static QStringList groups();
    static AppearanceWishes of(const PortalValues &values);

    /// A setting that is not looked at is passed over.
    void set(const QString &group, const QString &key, const QVariant &value);

    bool lessMotion() const;
    bool lessTransparency() const;
    bool dark() const;

    bool operator==(const AppearanceWishes &) const = default;

private:
    static constexpr size_t ruleCount = 6;
    std::array<bool, ruleCount> m_asked{};
};

} // namespace brimlight
