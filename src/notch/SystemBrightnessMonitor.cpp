#include "notch/SystemBrightnessMonitor.h"

#include <cmath>

namespace brimlight {

SystemBrightnessMonitor::SystemBrightnessMonitor(DisplayBrightness &display, Scheduler &scheduler,
                                                 QObject *parent)
    : QObject(parent)
    , m_display(display)
{
    m_brightness = read();
    m_timer = scheduler.every(period, period / 20, [this] { poll(); });
}

void SystemBrightnessMonitor::poll()
{
    // 0.51 - 0.5 is a little more than 0.01.
    constexpr double rounding = 1e-9;
    const double now = read();
    if (std::abs(now - m_brightness) <= threshold + rounding)
        return;
    m_brightness = now;
    Q_EMIT brightnessChanged();
}

} // namespace brimlight
