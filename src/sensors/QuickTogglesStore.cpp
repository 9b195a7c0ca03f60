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
    findObstacles();
}

void QuickTogglesStore::findObstacles()
{
    const auto keep = [this](std::optional<Obstacle> QuickTogglesStore::*which) {
        return [this, which](std::optional<Obstacle> found) {
            this->*which = found;
            Q_EMIT obstaclesChanged();
        };
    };
    m_powerAssertions.check(*this, keep(&QuickTogglesStore::m_caffeineObstacle));
    m_scripts.check(systemScripts::toggleDarkMode, *this, keep(&QuickTogglesStore::m_darkModeObstacle));
    m_scripts.check(systemScripts::toggleMute, *this, keep(&QuickTogglesStore::m_muteObstacle));
    m_scripts.check(systemScripts::emptyTrash, *this, keep(&QuickTogglesStore::m_trashObstacle));
}

QString QuickTogglesStore::reason(const std::optional<Obstacle> &obstacle)
{
    if (!obstacle)
        return {};
    switch (*obstacle) {
    case Obstacle::unknownSwitch:
        return QStringLiteral("This switch is not supported here.");
    case Obstacle::noAudioOutput:
        return QStringLiteral("No audio output was found.");
    case Obstacle::noColorScheme:
        return QStringLiteral("This desktop has no dark mode to switch.");
    case Obstacle::lockedColorScheme:
        return QStringLiteral("Dark mode is locked by the administrator.");
    case Obstacle::noColorSchemeTool:
        return QStringLiteral("Plasma's color scheme tool is missing.");
    case Obstacle::noTrash:
        return QStringLiteral("There is no trash yet.");
    case Obstacle::nothingKeepsAwake:
        return QStringLiteral("Nothing keeps the display awake here.");
    }
    Q_UNREACHABLE();
}

void QuickTogglesStore::toggleCaffeine()
{
    // What is held can always be let go.
    if (m_caffeineObstacle && !m_caffeineActive) {
        findObstacles();
        return;
    }
    setCaffeineActive(!m_caffeineActive);
    if (m_caffeineActive)
        m_assertionID = m_powerAssertions.create(QStringLiteral("Brimlight Caffeine"), *this,
                                                 [this] { setCaffeineActive(false); });
    else
        m_powerAssertions.release(m_assertionID);
}

void QuickTogglesStore::toggleDarkMode()
{
    runAndUpdate(systemScripts::toggleDarkMode, m_darkModeObstacle);
}

void QuickTogglesStore::toggleMute()
{
    runAndUpdate(systemScripts::toggleMute, m_muteObstacle);
}

void QuickTogglesStore::emptyTrash()
{
    if (m_trashObstacle) {
        findObstacles();
        return;
    }
    m_scripts.run(systemScripts::emptyTrash, *this, [](const std::optional<QString> &) {});
    m_sounds.play(QStringLiteral("Trash"));
}

void QuickTogglesStore::runAndUpdate(const QString &script, const std::optional<Obstacle> &obstacle)
{
    if (obstacle) {
        updateStates();
        return;
    }
    m_scripts.run(script, *this, [this](const std::optional<QString> &) { updateStates(); });
}

void QuickTogglesStore::setCaffeineActive(bool active)
{
    m_caffeineActive = active;
    Q_EMIT caffeineActiveChanged();
    Q_EMIT obstaclesChanged();
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
