#pragma once

#include "platform/AudioServer.h"
#include "platform/DoNotDisturb.h"
#include "platform/Scheduler.h"
#include "theme/SignalColors.h"

#include <QColor>
#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// What the header of the panel tells of the machine's switches. Lives as long as the panel.
class SystemStatusMonitor : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(bool isMuted READ isMuted NOTIFY isMutedChanged)
    Q_PROPERTY(QColor mutedColor READ mutedColor CONSTANT)
    Q_PROPERTY(bool isDND READ isDND NOTIFY isDNDChanged)

public:
    /// Both places where Do Not Disturb may be switched on are looked at this often.
    static constexpr std::chrono::milliseconds period{1000};

    SystemStatusMonitor(AudioServer &audio, const DoNotDisturb &doNotDisturb, Scheduler &scheduler);

    /// The microphone that is the default one at the time is muted. False without one.
    bool isMuted() const { return m_isMuted; }
    static QColor mutedColor() { return signalColors::orange; }
    bool isDND() const { return m_isDND; }

Q_SIGNALS:
    void isMutedChanged();
    void isDNDChanged();

private:
    void setMuted(bool muted);
    void updateDND();

    const DoNotDisturb &m_doNotDisturb;
    bool m_isMuted = false;
    bool m_isDND = false;
    std::unique_ptr<AudioWatch> m_microphone;
    std::unique_ptr<Scheduled> m_timer;
};

} // namespace brimlight
