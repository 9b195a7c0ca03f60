pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A ring with something short inside: a number, above it perhaps a symbol, below it perhaps what is measured.
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
    property real textSize: Math.max(Fonts.body.pixelSize, width * (caption === "" ? 0.25 : 0.225))

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
            visible: text !== ""
            text: root.text
            color: root.colors.textPrimary
            font: Fonts.sized(Fonts.strong(Fonts.value), root.textSize)
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: root.caption !== ""
            text: root.caption
            color: root.colors.textSecondary
            font: Fonts.sized(Fonts.medium(Fonts.tiny), Math.max(Fonts.tiny.pixelSize, root.textSize * 0.5))
        }
    }
}
