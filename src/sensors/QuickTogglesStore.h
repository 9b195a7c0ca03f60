#pragma once

#include "grid/WidgetLogic.h"
#include "platform/Appearance.h"
#include "platform/PowerAssertions.h"
#include "platform/ScriptHost.h"
#include "platform/SystemSounds.h"

namespace brimlight {

/// The four switches of one widget of the toggles. Reads the states each time the widget comes on screen and
/// after it has switched something itself; a change from elsewhere is not followed in between.
class QuickTogglesStore : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(bool caffeineActive READ caffeineActive NOTIFY caffeineActiveChanged)
    Q_PROPERTY(bool darkModeActive READ darkModeActive NOTIFY darkModeActiveChanged)
    Q_PROPERTY(bool mutedActive READ mutedActive NOTIFY mutedActiveChanged)

public:
    QuickTogglesStore(WidgetContext &context, ScriptHost &scripts, PowerAssertions &powerAssertions,
                      SystemSounds &sounds, const Appearance &appearance);
    ~QuickTogglesStore() override;

    /// The display is kept awake. Not stored: off at every start.
    bool caffeineActive() const { return m_caffeineActive; }
    /// As last read.
    bool darkModeActive() const { return m_darkModeActive; }
    bool mutedActive() const { return m_mutedActive; }

    void updateStates();
    Q_INVOKABLE void toggleCaffeine();
    Q_INVOKABLE void toggleDarkMode();
    Q_INVOKABLE void toggleMute();
    Q_INVOKABLE void emptyTrash();

Q_SIGNALS:
    void caffeineActiveChanged();
    void darkModeActiveChanged();
    void mutedActiveChanged();

protected:
    void appear() override { updateStates(); }

private:
    void setCaffeineActive(bool active);
    void setDarkModeActive(bool active);
    void setMutedActive(bool active);
    void runAndUpdate(const QString &script);

    ScriptHost &m_scripts;
    PowerAssertions &m_powerAssertions;
    SystemSounds &m_sounds;
    const Appearance &m_appearance;
    bool m_caffeineActive = false;
    bool m_darkModeActive = false;
    bool m_mutedActive = false;
    uint32_t m_assertionID = 0;
};

} // namespace brimlight
