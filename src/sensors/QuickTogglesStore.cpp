#include "sensors/QuickTogglesStore.h"

namespace brimlight {

QuickTogglesStore::QuickTogglesStore(WidgetContext &context, ScriptHost &scripts,
                                     PowerAssertions &powerAssertions, SystemSounds &sounds,
                                     const Appearance &appearance)
    : WidgetLogic(context)
    , m_scripts(scripts)
    , m_powerAssertions(powerAssertions)
    , m_sounds(sounds)
    , m_appearance(appearance)
{
}

QuickTogglesStore::~QuickTogglesStore()
{
    // With the widget goes the only switch that could end it.
    if (m_caffeineActive)
        m_powerAssertions.release(m_assertionID);
}

void QuickTogglesStore::updateStates()
{
    setDarkModeActive(m_appearance.isDark());
    m_scripts.run(systemScripts::outputMuted, *this, [this](const std::optional<QString> &reply) {
        setMutedActive(reply == QStringLiteral("true"));
    });
}

void QuickTogglesStore::toggleCaffeine()
{
    setCaffeineActive(!m_caffeineActive);
    if (m_caffeineActive)
        m_assertionID = m_powerAssertions.create(QStringLiteral("Brimlight Caffeine"), *this,
                                                 [this] { setCaffeineActive(false); });
    else
        m_powerAssertions.release(m_assertionID);
}

void QuickTogglesStore::toggleDarkMode()
{
    runAndUpdate(systemScripts::toggleDarkMode);
}

void QuickTogglesStore::toggleMute()
{
    runAndUpdate(systemScripts::toggleMute);
}

void QuickTogglesStore::emptyTrash()
{
    m_scripts.run(systemScripts::emptyTrash, *this, [](const std::optional<QString> &) {});
    m_sounds.play(QStringLiteral("Trash"));
}

void QuickTogglesStore::runAndUpdate(const QString &script)
{
    m_scripts.run(script, *this, [this](const std::optional<QString> &) { updateStates(); });
}

void QuickTogglesStore::setCaffeineActive(bool active)
{
    m_caffeineActive = active;
    Q_EMIT caffeineActiveChanged();
}

void QuickTogglesStore::setDarkModeActive(bool active)
{
    m_darkModeActive = active;
    Q_EMIT darkModeActiveChanged();
}

void QuickTogglesStore::setMutedActive(bool active)
{
    m_mutedActive = active;
    Q_EMIT mutedActiveChanged();
}

} // namespace brimlight
