#pragma once

#include "platform/DisplayBrightness.h"
#include "platform/Scheduler.h"

#include <QObject>

namespace brimlight {

/// The brightness of the built-in display, asked for all the time: not every display tells of a change. It
/// notices changes and makes none.
class SystemBrightnessMonitor : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double brightness READ brightness NOTIFY brightnessChanged)

public:
    static constexpr std::chrono::milliseconds period{500};
    /// What differs by no more is no change.
    static constexpr double threshold = 0.01;

    SystemBrightnessMonitor(DisplayBrightness &display, Scheduler &scheduler, QObject *parent = nullptr);

    /// From 0 to 1; 1 while it cannot be read.
    double brightness() const { return m_brightness; }

Q_SIGNALS:
    void brightnessChanged();

private:
    double read() const { return m_display.linearBrightness().value_or(1.0); }
    void poll();

    DisplayBrightness &m_display;
    double m_brightness = 0.5;
    std::unique_ptr<Scheduled> m_timer;
};

} // namespace brimlight
