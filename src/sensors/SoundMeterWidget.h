#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The loudness at the microphone.
struct SoundMeterWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("sound_meter"),
                .displayName = QStringLiteral("Sound Meter"),
                .symbol = QStringLiteral("waveform"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::never(),
                .permissions = {WidgetPermission::microphone}};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
