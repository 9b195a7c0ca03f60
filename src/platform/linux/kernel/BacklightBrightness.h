#pragma once

#include "platform/DisplayBrightness.h"

#include <QString>

namespace brimlight {

/// The backlight of /sys/class/backlight. Where one display has several interfaces, the firmware's counts
/// before the platform's and that before the hardware's own, as the kernel advises.
///
/// What is read is the value that the kernel keeps, so no driver is waited for.
class BacklightBrightness : public DisplayBrightness
{
public:
    explicit BacklightBrightness(const QString &sys = QStringLiteral("/sys"));

    std::optional<double> linearBrightness() override;

private:
    void choose();
    std::optional<double> read() const;

    QString m_folder;
    /// The chosen interface's own folder; empty without one.
    QString m_chosen;
};

} // namespace brimlight
