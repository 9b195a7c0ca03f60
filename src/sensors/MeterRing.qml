pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A ring with something short inside: a number, and above it perhaps a symbol.
Item {
    id: root

    required property theme colors
    required property real value
    required property string text
    property string symbol
    property color tint: colors.accent
    property real lineWidth: 5
    property string caption
    property alias duration: ring.duration
    property alias easing: ring.easing
    property real textSize: Math.max(10, width * 0.25)

    Accessible.role: Accessible.ProgressBar
    Accessible.name: (caption !== "" ? caption + " " : "") + text

    RingGauge {
        id: ring

        anchors.fill: parent
        // Half of the line and the glow stand outside of the ring's own circle.
        anchors.margins: root.lineWidth / 2 + 1
        value: root.value
        lineWidth: root.lineWidth
        tint: root.tint
        track: Qt.alpha(root.tint, 0.18)
        reduceMotion: Motion.reduced
    }
    Column {
        anchors.centerIn: parent

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: root.symbol !== ""
            name: root.symbol
            size: root.textSize * 0.72
            color: root.tint
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.text
            color: root.colors.textPrimary
            font.family: Fonts.rounded
            font.pixelSize: root.textSize
            font.weight: Font.DemiBold
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: root.caption !== ""
            text: root.caption
            color: root.colors.textSecondary
            font.family: Fonts.rounded
            font.pixelSize: Math.max(8, root.textSize * 0.5)
            font.weight: Font.Medium
        }
    }
}
