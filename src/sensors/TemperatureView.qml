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
    required property TemperatureFace face
    readonly property theme colors: context.theme.shown
    readonly property bool isWide: context.size === "wide"

    component BatteryLine: Row {
        spacing: 5

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "battery.100"
            size: 11
            color: root.colors.textSecondary
        }
        Caption {
            colors: root.colors
            text: root.face.batteryText
        }
    }

    MeterRing {
        id: ring

        visible: root.face.hasCpu
        width: root.height - (root.isWide || !root.face.hasBattery ? 0 : 14)
        height: width
        x: root.isWide ? 0 : (root.width - width) / 2
        colors: root.colors
        value: root.face.fraction
        text: root.face.cpuText
        tint: root.face.tint
        caption: root.isWide ? "" : "CPU"
    }
    BatteryLine {
        visible: !root.isWide && root.face.hasCpu && root.face.hasBattery
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
    }
    Column {
        visible: root.isWide && root.face.hasCpu
        anchors.left: ring.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 3

        WidgetTitle {
            colors: root.colors
            symbol: "cpu"
            text: "CPU " + root.face.unit
            tint: root.face.tint
        }
        BatteryLine {
            visible: root.face.hasBattery
        }
    }
    // Stacked where it is small, side by side where it is wide.
    Grid {
        visible: !root.face.hasCpu
        anchors.centerIn: parent
        columns: root.isWide ? 2 : 1
        columnSpacing: 8
        rowSpacing: 3
        verticalItemAlignment: Grid.AlignVCenter
        horizontalItemAlignment: Grid.AlignHCenter

        Symbol {
            name: "thermometer.medium"
            size: root.isWide ? 24 : 20
            color: root.colors.accent
        }
        Text {
            text: root.face.stateText
            color: root.colors.textPrimary
            font: Fonts.strong(root.isWide ? Fonts.value : Fonts.label)
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
