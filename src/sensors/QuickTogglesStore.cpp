#include "sensors/QuickTogglesStore.h"

namespace brimlight {

QuickTogglesStore::QuickTogglesStore(QObject *parent)
    : WidgetLogic(parent)
{
    connect(this, &WidgetLogic::contextChanged, this, &QuickTogglesStore::begin);
}

QuickTogglesStore::~QuickTogglesStore()
{
    // With the widget goes the only switch that could end it.
    if (m_caffeineActive && m_ports)
        m_ports->powerAssertions.release(m_assertionID);
}

void QuickTogglesStore::setPorts(SwitchPorts *ports)
{
    m_ports = ports;
    Q_EMIT portsChanged();
    begin();
}

void QuickTogglesStore::begin()
{
    if (context() && context()->isLive())
        appear();
}

void QuickTogglesStore::appear()
{
    if (m_ports)
        updateStates();
}

void QuickTogglesStore::updateStates()
{
    setDarkModeActive(m_ports->appearance.isDark());
    m_ports->scripts.run(systemScripts::outputMuted, *this, [this](const std::optional<QString> &reply) {
        setMutedActive(reply == QStringLiteral("true"));
    });
}

void QuickTogglesStore::toggleCaffeine()
{
    setCaffeineActive(!m_caffeineActive);
    PowerAssertions &assertions = m_ports->powerAssertions;
    if (m_caffeineActive)
        m_assertionID = assertions.create(QStringLiteral("Brimlight Caffeine"), *this,
                                          [this] { setCaffeineActive(false); });
    else
        assertions.release(m_assertionID);
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
    m_ports->scripts.run(systemScripts::emptyTrash, *this, [](const std::optional<QString> &) {});
    m_ports->sounds.play(QStringLiteral("Trash"));
}

void QuickTogglesStore::runAndUpdate(const QString &script)
{
    m_ports->scripts.run(script, *this, [this](const std::optional<QString> &) {
        if (m_ports)
            updateStates();
    });
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
