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
    required property BatteryHealthFace face
    readonly property theme colors: context.theme.shown
    readonly property bool isLarge: context.size === "large"
    readonly property bool isWide: context.size === "wide"

    MeterRing {
        id: ring

        visible: root.face.hasBattery
        width: root.isLarge ? 92 : root.height
        height: width
        x: root.isWide ? 0 : (root.width - width) / 2
        y: root.isLarge ? 6 : 0
        colors: root.colors
        value: root.face.fraction
        text: root.face.percent
        caption: root.isWide ? "" : "Health"
        tint: root.face.tint
        lineWidth: root.isLarge ? 8 : 5
    }
    Column {
        visible: root.isWide && root.face.hasBattery
        anchors.left: ring.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        WidgetTitle {
            colors: root.colors
            symbol: "cross.case.fill"
            text: "Health"
            tint: root.face.tint
        }
        Caption {
            width: parent.width
            colors: root.colors
            text: root.face.cycles
        }
    }
    Caption {
        visible: root.isLarge && root.face.hasBattery
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        colors: root.colors
        text: root.face.cycles
    }
    // Stacked, or side by side where it is wide.
    Grid {
        visible: !root.face.hasBattery
        anchors.centerIn: parent
        columns: root.isWide ? 2 : 1
        columnSpacing: 8
        rowSpacing: 4
        verticalItemAlignment: Grid.AlignVCenter
        horizontalItemAlignment: Grid.AlignHCenter

        Symbol {
            name: "cross.case"
            size: root.isLarge ? 30 : 18
            color: root.colors.textSecondary
        }
        Caption {
            width: Math.min(implicitWidth, root.width)
            colors: root.colors
            text: "No battery"
        }
    }
}
