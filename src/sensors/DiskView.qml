import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Sensors

Item {
    id: root

    required property WidgetContext context
    required property MachinePorts machine
    readonly property theme colors: context.theme.shown
    readonly property bool isLarge: context.size === "large"
    readonly property bool isWide: context.size === "wide"

    DiskFace {
        id: disk

        context: root.context
        machine: root.machine
    }

    WidgetTitle {
        visible: root.isLarge
        x: 4
        y: 3
        colors: root.colors
        symbol: "internaldrive"
        text: "Disk"
        tint: disk.tint
    }
    Caption {
        visible: root.isLarge
        anchors.right: parent.right
        anchors.rightMargin: 5
        y: 4
        colors: root.colors
        color: disk.tint
        text: disk.status
    }
    MeterRing {
        id: ring

        width: root.isLarge ? 84 : root.height
        height: width
        x: root.isWide ? 0 : (root.width - width) / 2
        y: root.isLarge ? 27 : 0
        colors: root.colors
        value: disk.fraction
        text: disk.percent
        tint: disk.tint
        lineWidth: root.isLarge ? 8 : 4
        textSize: root.isLarge ? 21 : 13
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
            tint: disk.tint
        }
        Caption {
            width: parent.width
            colors: root.colors
            text: disk.freeText
        }
    }
    Caption {
        visible: root.isLarge
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 6
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        colors: root.colors
        text: disk.freeText
    }
}
