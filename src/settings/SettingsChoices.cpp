#include "settings/SettingsChoices.h"

#include <algorithm>

namespace brimlight {
namespace {

struct HoverDelay
{
    const char *label;
    double seconds;
};

constexpr std::array allHoverDelays{HoverDelay{"Immediate (0s)", 0}, HoverDelay{"0.2s", 0.2},
                                    HoverDelay{"0.5s", 0.5}, HoverDelay{"1.0s", 1.0},
                                    HoverDelay{"1.5s", 1.5}};

/// In the order in which the panel shows them.
constexpr std::array shownLanguages{AppLanguage::english, AppLanguage::german, AppLanguage::spanish,
                                    AppLanguage::french, AppLanguage::italian};

template<typename Options, typename Value, typename Projection = std::identity>
int indexOf(const Options &options, const Value &value, Projection projection = {})
{
    const auto found = std::ranges::find(options, value, projection);
    return found == options.end() ? -1 : static_cast<int>(found - options.begin());
}

template<typename Options>
bool hasIndex(const Options &options, int index)
{
    return index >= 0 && static_cast<size_t>(index) < options.size();
}

} // namespace

void SettingsChoices::setSettings(AppSettings *settings)
{
    m_settings = settings;
    for (const auto signal :
         {&AppSettings::languageChanged, &AppSettings::hoverDelayChanged, &AppSettings::refreshRateChanged})
        connect(settings, signal, this, &SettingsChoices::changed);
    Q_EMIT changed();
}

QStringList SettingsChoices::languages()
{
    QStringList names;
    for (const AppLanguage language : shownLanguages)
        names.append(label(language));
    return names;
}

int SettingsChoices::language() const
{
    return m_settings ? indexOf(shownLanguages, m_settings->language()) : -1;
}

void SettingsChoices::chooseLanguage(int index)
{
    if (m_settings && hasIndex(shownLanguages, index))
        m_settings->setLanguage(shownLanguages[static_cast<size_t>(index)]);
}

QStringList SettingsChoices::hoverDelays() const
{
    QStringList labels;
    for (const HoverDelay &delay : allHoverDelays)
        labels.append(localized(QLatin1String(delay.label)));
    return labels;
}

int SettingsChoices::hoverDelay() const
{
    return m_settings ? indexOf(allHoverDelays, m_settings->hoverDelay(), &HoverDelay::seconds) : -1;
}

void SettingsChoices::chooseHoverDelay(int index)
{
    if (m_settings && hasIndex(allHoverDelays, index))
        m_settings->setHoverDelay(allHoverDelays[static_cast<size_t>(index)].seconds);
}

QStringList SettingsChoices::refreshRates() const
{
    QStringList labels;
    for (const RefreshRate rate : allRefreshRates)
        labels.append(localized(label(rate)));
    return labels;
}

int SettingsChoices::refreshRate() const
{
    return m_settings ? indexOf(allRefreshRates, m_settings->refreshRate()) : -1;
}

void SettingsChoices::chooseRefreshRate(int index)
{
    if (m_settings && hasIndex(allRefreshRates, index))
        m_settings->setRefreshRate(allRefreshRates[static_cast<size_t>(index)]);
}

} // namespace brimlight
