pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Widgets

Item {
    id: root

    required property WidgetContext context
    required property DayProgressFace face
    readonly property theme colors: context.theme.shown
    readonly property string size: context.size
    readonly property bool isRich: size === "large" || size === "wideTall"

    Text {
        id: heading

        visible: root.isRich || root.size === "banner"
        text: root.isRich ? "Progress" : "Day Progress"
        anchors.verticalCenter: root.size === "banner" ? parent.verticalCenter : undefined
        color: root.colors.textPrimary
        font.family: Fonts.rounded
        font.pixelSize: root.isRich ? 12 : 11
        font.weight: Font.DemiBold
    }

    Item {
        id: ring

        readonly property real side: root.isRich ? Math.min(root.width * 0.62, root.height - heading.height - 10 - bars.height - 10) : root.height

        width: side
        height: side
        x: root.isRich ? (root.width - side) / 2 : root.size === "banner" ? heading.width + 12 : root.size === "small" ? (root.width - side) / 2 : 0
        y: root.isRich ? heading.height + 10 : 0

        RingGauge {
            anchors.fill: parent
            // Half of the line and the glow stand outside of the ring's own circle.
            anchors.margins: 4
            value: root.face.day
            lineWidth: 6
            tint: root.colors.accent
            track: Qt.alpha(root.colors.accent, 0.18)
            reduceMotion: Motion.reduced
            Accessible.role: Accessible.ProgressBar
            Accessible.name: "Day " + root.face.dayText
        }
        Text {
            anchors.centerIn: parent
            text: root.face.dayText
            color: root.colors.textPrimary
            font.family: Fonts.rounded
            font.pixelSize: 13
            font.weight: Font.DemiBold
        }
    }

    Column {
        id: bars

        visible: root.size !== "small"
        anchors.left: root.isRich ? parent.left : ring.right
        anchors.leftMargin: root.isRich ? 0 : 12
        anchors.right: parent.right
        y: root.isRich ? root.height - height : (root.height - height) / 2
        spacing: 10

        ProgressBar {
            width: parent.width
            label: "Week"
            fraction: root.face.week
            text: root.face.weekText
            colors: root.colors
        }
        ProgressBar {
            width: parent.width
            visible: root.size !== "banner"
            label: "Month"
            fraction: root.face.month
            text: root.face.monthText
            colors: root.colors
        }
    }
}
