pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Sensors

Item {
    id: root

    required property WidgetContext context
    required property NetworkFace face
    readonly property theme colors: context.theme.shown
    readonly property string size: context.size

    TileTitle {
        id: heading

        visible: root.size === "large"
        colors: root.colors
        symbol: "network"
        text: "Network"
    }
    Column {
        id: rates

        readonly property bool isSmall: root.size === "small"

        x: root.size === "large" ? heading.x : 0
        y: root.size === "large" ? heading.height + 17 : (root.height - height) / 2
        width: root.size === "banner" ? 84 : root.size === "wide" ? 74 : root.width - x
        spacing: isSmall ? 6 : 5

        RateLine {
            width: parent.width
            colors: root.colors
            symbol: "arrow.down"
            text: rates.isSmall ? root.face.compactDown : root.face.down
            style: root.size === "large" ? Fonts.title : Fonts.body
        }
        RateLine {
            width: parent.width
            colors: root.colors
            symbol: "arrow.up"
            text: rates.isSmall ? root.face.compactUp : root.face.up
            tint: root.colors.textSecondary
            style: root.size === "large" ? Fonts.title : Fonts.body
        }
    }
    RateBars {
        visible: root.size !== "small"
        x: root.size === "large" ? heading.x : rates.width + 8
        y: root.size === "large" ? root.height - height - 5 : (root.height - height) / 2
        width: root.width - x - (root.size === "large" ? heading.x : 0)
        height: root.size === "large" ? 44 : 20
        colors: root.colors
        bars: visible ? root.face.bars : []
        longest: 24
    }
}
