#pragma once

#include "grid/WidgetLogic.h"
#include "sensors/SwitchPorts.h"

namespace brimlight {

/// The four switches of one widget of the toggles. Reads the states each time the widget comes on screen and
/// after it has switched something itself; a change from elsewhere is not followed in between.
class QuickTogglesStore : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimlight::SwitchPorts *ports READ ports WRITE setPorts NOTIFY portsChanged REQUIRED)
    Q_PROPERTY(bool caffeineActive READ caffeineActive NOTIFY caffeineActiveChanged)
    Q_PROPERTY(bool darkModeActive READ darkModeActive NOTIFY darkModeActiveChanged)
    Q_PROPERTY(bool mutedActive READ mutedActive NOTIFY mutedActiveChanged)

public:
    explicit QuickTogglesStore(QObject *parent = nullptr);
    ~QuickTogglesStore() override;

    SwitchPorts *ports() const { return m_ports; }
    void setPorts(SwitchPorts *ports);

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
    void portsChanged();
    void caffeineActiveChanged();
    void darkModeActiveChanged();
    void mutedActiveChanged();

protected:
    void appear() override;

private:
    void setCaffeineActive(bool active);
    void setDarkModeActive(bool active);
    void setMutedActive(bool active);
    /// As soon as both are known, when the widget is on screen from the start.
    void begin();
    void runAndUpdate(const QString &script);

    QPointer<SwitchPorts> m_ports;
    bool m_caffeineActive = false;
    bool m_darkModeActive = false;
    bool m_mutedActive = false;
    uint32_t m_assertionID = 0;
};

} // namespace brimlight
