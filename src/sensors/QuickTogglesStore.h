#pragma once

#include "grid/WidgetLogic.h"
#include "platform/Appearance.h"
#include "platform/PowerAssertions.h"
#include "platform/ScriptHost.h"
#include "platform/SystemSounds.h"

namespace brimlight {

/// The four switches of one widget of the toggles. Reads the states each time the widget comes on screen and
/// after it has switched something itself; a change from elsewhere is not followed in between. At the same
/// times it finds out which of the switches work here. One that does not does nothing but look again.
class QuickTogglesStore : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(bool caffeineActive READ caffeineActive NOTIFY caffeineActiveChanged)
    Q_PROPERTY(bool darkModeActive READ darkModeActive NOTIFY darkModeActiveChanged)
    Q_PROPERTY(bool mutedActive READ mutedActive NOTIFY mutedActiveChanged)
    Q_PROPERTY(QString caffeineObstacle READ caffeineObstacle NOTIFY obstaclesChanged)
    Q_PROPERTY(QString darkModeObstacle READ darkModeObstacle NOTIFY obstaclesChanged)
    Q_PROPERTY(QString muteObstacle READ muteObstacle NOTIFY obstaclesChanged)
    Q_PROPERTY(QString trashObstacle READ trashObstacle NOTIFY obstaclesChanged)

public:
    QuickTogglesStore(WidgetContext &context, ScriptHost &scripts, PowerAssertions &powerAssertions,
                      SystemSounds &sounds, const Appearance &appearance);
    ~QuickTogglesStore() override;

    /// The display is kept awake. Not stored: off at every start.
    bool caffeineActive() const { return m_caffeineActive; }
    /// As last read.
    bool darkModeActive() const { return m_darkModeActive; }
    bool mutedActive() const { return m_mutedActive; }

    /// Why a switch does not work, as a key of the translations; empty while it works or is not known.
    /// What is held works.
    QString caffeineObstacle() const { return m_caffeineActive ? QString() : reason(m_caffeineObstacle); }
    QString darkModeObstacle() const { return reason(m_darkModeObstacle); }
    QString muteObstacle() const { return reason(m_muteObstacle); }
    QString trashObstacle() const { return reason(m_trashObstacle); }

    void updateStates();
    Q_INVOKABLE void toggleCaffeine();
    Q_INVOKABLE void toggleDarkMode();
    Q_INVOKABLE void toggleMute();
    Q_INVOKABLE void emptyTrash();

Q_SIGNALS:
    void caffeineActiveChanged();
    void darkModeActiveChanged();
    void mutedActiveChanged();
    void obstaclesChanged();

protected:
    void appear() override { updateStates(); }

private:
    void setCaffeineActive(bool active);
    void setDarkModeActive(bool active);
    void setMutedActive(bool active);
    void runAndUpdate(const QString &script, const std::optional<Obstacle> &obstacle);
    void findObstacles();
    static QString reason(const std::optional<Obstacle> &obstacle);

    ScriptHost &m_scripts;
    PowerAssertions &m_powerAssertions;
    SystemSounds &m_sounds;
    const Appearance &m_appearance;
    bool m_caffeineActive = false;
    bool m_darkModeActive = false;
    bool m_mutedActive = false;
    uint32_t m_assertionID = 0;
    std::optional<Obstacle> m_caffeineObstacle;
    std::optional<Obstacle> m_darkModeObstacle;
    std::optional<Obstacle> m_muteObstacle;
    std::optional<Obstacle> m_trashObstacle;
};

} // namespace brimlight
