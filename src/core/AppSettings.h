#pragma once

#include "core/Translations.h"

#include <QObject>
#include <QTimeZone>
#include <QtQmlIntegration>

#include <array>
#include <chrono>
#include <optional>

namespace brimlight {

class UserDefaults;

/// How often the widgets of the open panel are brought up to date.
enum class RefreshRate { live, balanced, efficient, saver };

inline constexpr std::array allRefreshRates{RefreshRate::live, RefreshRate::balanced, RefreshRate::efficient,
                                            RefreshRate::saver};

/// The tick period of a rate.
constexpr std::chrono::milliseconds interval(RefreshRate rate)
{
    using namespace std::chrono_literals;
    constexpr std::array intervals{500ms, 1000ms, 2000ms, 5000ms};
    return intervals[static_cast<size_t>(rate)];
}

/// The stored text of a rate, and back; absent for a text that names none.
QString rawValue(RefreshRate rate);
std::optional<RefreshRate> refreshRateFromRawValue(const QString &raw);
/// What the settings panel calls it.
QString label(RefreshRate rate);

/// The user's global preferences. Each is read once, at creation, and written at every assignment; an
/// assignment notifies every time, equal value or not. A stored value of the wrong type costs that one
/// setting.
class AppSettings : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(bool clock24h READ clock24h WRITE setClock24h NOTIFY clock24hChanged)
    Q_PROPERTY(bool showSeconds READ showSeconds WRITE setShowSeconds NOTIFY showSecondsChanged)
    Q_PROPERTY(bool celsius READ celsius WRITE setCelsius NOTIFY celsiusChanged)

public:
    explicit AppSettings(UserDefaults &defaults, QObject *parent = nullptr);

    bool clock24h() const { return m_clock24h; }
    void setClock24h(bool value);
    bool showSeconds() const { return m_showSeconds; }
    void setShowSeconds(bool value);
    bool celsius() const { return m_celsius; }
    void setCelsius(bool value);
    RefreshRate refreshRate() const { return m_refreshRate; }
    void setRefreshRate(RefreshRate value);
    AppLanguage language() const { return m_language; }
    void setLanguage(AppLanguage value);
    /// Seconds the pointer must rest before the panel opens; 0 or less opens at once.
    double hoverDelay() const { return m_hoverDelay; }
    void setHoverDelay(double value);

    /// The text in the user's language; the key itself, which is English, when there is no translation.
    QString localized(const QString &key) const;
    /// "HH:mm" or, on a 12-hour clock, "h:mm". Without a zone, the current one.
    Q_INVOKABLE QString hourMinute(const QDateTime &date) const { return hourMinute(date, std::nullopt); }
    QString hourMinute(const QDateTime &date, const std::optional<QTimeZone> &timeZone) const;
    /// The locale's marker for the half of the day on a 12-hour clock, otherwise empty.
    QString meridiem(const QDateTime &date, const std::optional<QTimeZone> &timeZone = std::nullopt) const;
    /// A finite temperature in the user's unit, rounded, with the degree sign and no unit letter.
    QString temperature(double celsius) const;

Q_SIGNALS:
    void clock24hChanged();
    void showSecondsChanged();
    void celsiusChanged();
    void refreshRateChanged();
    void languageChanged();
    void hoverDelayChanged();

private:
    UserDefaults &m_defaults;
    bool m_clock24h;
    bool m_showSeconds;
    bool m_celsius;
    RefreshRate m_refreshRate;
    AppLanguage m_language;
    double m_hoverDelay;
};

} // namespace brimlight
