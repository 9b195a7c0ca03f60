#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The space on the disk.
struct DiskWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("disk"),
                .displayName = QStringLiteral("Disk"),
                .symbol = QStringLiteral("internaldrive"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::small,
                .refresh = RefreshCadence::seconds(10)};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Sensors/DiskView.qml")),
                .stores = {QStringLiteral("machine")}};
    }
};

} // namespace brimlight
