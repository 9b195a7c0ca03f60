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
    required property DiskFace face
    readonly property theme colors: context.theme.shown
    readonly property bool isLarge: context.size === "large"
    readonly property bool isWide: context.size === "wide"

    TileTitle {
        visible: root.isLarge
        colors: root.colors
        symbol: "internaldrive"
        text: "Disk"
        tint: root.face.tint
    }
    Caption {
        visible: root.isLarge
        anchors.right: parent.right
        anchors.rightMargin: 5
        y: 4
        colors: root.colors
        color: root.face.tint
        text: root.face.status
    }
    MeterRing {
        id: ring

        width: root.isLarge ? 84 : root.height
        height: width
        x: root.isWide ? 0 : (root.width - width) / 2
        y: root.isLarge ? 27 : 0
        colors: root.colors
        value: root.face.fraction
        text: root.face.percent
        tint: root.face.tint
        lineWidth: root.isLarge ? 8 : 4
        caption: root.context.size === "small" ? "Disk" : ""
    }
    Column {
        visible: root.isWide
        anchors.left: ring.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        WidgetTitle {
            colors: root.colors
            symbol: "internaldrive"
            text: "Disk"
            tint: root.face.tint
        }
        Caption {
            width: parent.width
            colors: root.colors
            text: root.face.freeText
        }
    }
    Caption {
        visible: root.isLarge
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 6
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        colors: root.colors
        text: root.face.freeText
    }
}
