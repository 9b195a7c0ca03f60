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
    required property BatteryFace face
    readonly property theme colors: context.theme.shown
    readonly property bool isLarge: context.size === "large"

    MeterRing {
        id: ring

        // From 1 to 0 and back while the battery charges.
        property real pulse: 1

        width: root.isLarge ? 92 : root.height
        height: width
        x: root.context.size === "wide" ? 0 : (root.width - width) / 2
        y: root.isLarge ? 4 : 0
        colors: root.colors
        value: root.face.fraction
        text: root.face.number
        symbol: root.face.charging ? "bolt.fill" : ""
        tint: root.face.tint
        lineWidth: root.isLarge ? 8 : 5
        caption: root.context.size === "small" && !root.face.charging ? "Battery" : ""
        duration: Motion.rolling.duration
        easing: Motion.rolling.easing
        opacity: 0.72 + 0.28 * pulse

        SequentialAnimation {
            running: root.face.charging && root.context.live && !Motion.reduced
            loops: Animation.Infinite
            onRunningChanged: {
                if (!running)
                    ring.pulse = 1;
            }

            MotionAnimation {
                target: ring
                property: "pulse"
                to: 0
                movement: Motion.charging
            }
            MotionAnimation {
                target: ring
                property: "pulse"
                to: 1
                movement: Motion.charging
            }
        }
    }
    Column {
        visible: root.context.size === "wide"
        anchors.left: ring.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        WidgetTitle {
            colors: root.colors
            symbol: root.face.symbol
            text: root.face.percent
            tint: root.face.tint
        }
        Caption {
            width: parent.width
            colors: root.colors
            text: root.face.detail
        }
        Caption {
            width: parent.width
            colors: root.colors
            font: Fonts.footnote
            text: root.face.status
        }
    }
    Column {
        visible: root.isLarge
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 3
        width: parent.width
        spacing: 2

        WidgetTitle {
            anchors.horizontalCenter: parent.horizontalCenter
            colors: root.colors
            symbol: root.face.symbol
            text: root.face.detail
            tint: root.face.tint
        }
        Caption {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            colors: root.colors
            text: root.face.status
        }
    }
}
