#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The spectrum of the microphone.
struct AudioVisualizerWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("audio"),
                .displayName = QStringLiteral("Audio Visualizer"),
                .symbol = QStringLiteral("waveform"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::never(),
                .permissions = {WidgetPermission::microphone}};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
