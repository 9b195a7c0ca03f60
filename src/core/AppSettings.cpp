#include "core/AppSettings.h"

#include "core/EnumTexts.h"
#include "core/Formats.h"
#include "platform/UserDefaults.h"

#include <QLocale>

namespace brimlight {
namespace {

QString clock24hKey()
{
    return QStringLiteral("brimlight.clock24h");
}
QString showSecondsKey()
{
    return QStringLiteral("brimlight.showSeconds");
}
QString celsiusKey()
{
    return QStringLiteral("brimlight.celsius");
}
QString refreshRateKey()
{
    return QStringLiteral("brimlight.refreshRate");
}
QString languageKey()
{
    return QStringLiteral("brimlight.language");
}
QString hoverDelayKey()
{
    return QStringLiteral("brimlight.hoverDelay");
}

constexpr EnumTexts<RefreshRate, 4> rateTexts{{{{RefreshRate::live, u"live"},
                                                {RefreshRate::balanced, u"balanced"},
                                                {RefreshRate::efficient, u"efficient"},
                                                {RefreshRate::saver, u"saver"}}}};
static_assert(rateTexts.covers(allRefreshRates));

constexpr EnumTexts<RefreshRate, 4> rateLabels{{{{RefreshRate::live, u"Live · 0.5 s"},
                                                 {RefreshRate::balanced, u"Balanced · 1 s"},
                                                 {RefreshRate::efficient, u"Efficient · 2 s"},
                                                 {RefreshRate::saver, u"Power Saver · 5 s"}}}};
static_assert(rateLabels.covers(allRefreshRates));

QDateTime inZone(const QDateTime &date, const std::optional<QTimeZone> &zone)
{
    return zone ? date.toTimeZone(*zone) : date.toLocalTime();
}

} // namespace

QString rawValue(RefreshRate rate)
{
    return rateTexts.text(rate);
}

std::optional<RefreshRate> refreshRateFromRawValue(const QString &raw)
{
    return rateTexts.value(raw);
}

QString label(RefreshRate rate)
{
    return rateLabels.text(rate);
}

AppSettings::AppSettings(UserDefaults &defaults, QObject *parent)
    : QObject(parent)
    , m_defaults(defaults)
    , m_clock24h(defaults.read<bool>(clock24hKey()).value_or(true))
    , m_showSeconds(defaults.read<bool>(showSecondsKey()).value_or(true))
    , m_celsius(defaults.read<bool>(celsiusKey()).value_or(true))
    , m_refreshRate(refreshRateFromRawValue(defaults.read<QString>(refreshRateKey()).value_or(QString()))
                        .value_or(RefreshRate::balanced))
    , m_language(languageFromRawValue(defaults.read<QString>(languageKey()).value_or(QString()))
                     .value_or(AppLanguage::english))
    , m_hoverDelay(defaults.read<double>(hoverDelayKey()).value_or(0.5))
{
}

void AppSettings::setClock24h(bool value)
{
    m_clock24h = value;
    m_defaults.setValue(clock24hKey(), value);
    Q_EMIT clock24hChanged();
}

void AppSettings::setShowSeconds(bool value)
{
    m_showSeconds = value;
    m_defaults.setValue(showSecondsKey(), value);
    Q_EMIT showSecondsChanged();
}

void AppSettings::setCelsius(bool value)
{
    m_celsius = value;
    m_defaults.setValue(celsiusKey(), value);
    Q_EMIT celsiusChanged();
}

void AppSettings::setRefreshRate(RefreshRate value)
{
    m_refreshRate = value;
    m_defaults.setValue(refreshRateKey(), rawValue(value));
    Q_EMIT refreshRateChanged();
}

void AppSettings::setLanguage(AppLanguage value)
{
    m_language = value;
    m_defaults.setValue(languageKey(), rawValue(value));
    Q_EMIT languageChanged();
}

void AppSettings::setHoverDelay(double value)
{
    m_hoverDelay = value;
    m_defaults.setValue(hoverDelayKey(), value);
    Q_EMIT hoverDelayChanged();
}

QString AppSettings::localized(const QString &key) const
{
    return translate(key, m_language);
}

QString AppSettings::hourMinute(const QDateTime &date, const std::optional<QTimeZone> &timeZone) const
{
    const QTime time = inZone(date, timeZone).time();
    if (m_clock24h)
        return time.toString(QStringLiteral("HH:mm"));
    // Qt's "h" counts to 12 only next to a marker, which stands elsewhere here.
    const int hour = time.hour() % 12;
    return QStringLiteral("%1:%2").arg(hour == 0 ? 12 : hour).arg(time.minute(), 2, 10, QLatin1Char('0'));
}

QString AppSettings::meridiem(const QDateTime &date, const std::optional<QTimeZone> &timeZone) const
{
    if (m_clock24h)
        return {};
    const QLocale locale;
    return inZone(date, timeZone).time().hour() < 12 ? locale.amText() : locale.pmText();
}

QString AppSettings::temperature(double celsius) const
{
    return formats::degrees(celsius, m_celsius);
}

} // namespace brimlight
