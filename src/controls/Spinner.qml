pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// Says that something is going on. It turns in steps, which is cheap to draw.
Item {
    id: root

    required property color color

    implicitWidth: 14
    implicitHeight: 14

    Item {
        id: dots

        readonly property real reach: Math.min(width, height) / 14

        anchors.fill: parent

        Repeater {
            model: 8

            Rectangle {
                required property int index
                readonly property real angle: index * Math.PI / 4

                x: dots.width / 2 + (5.5 * Math.sin(angle) - 1.25) * dots.reach
                y: dots.height / 2 - (5.5 * Math.cos(angle) + 1.25) * dots.reach
                width: 2.5 * dots.reach
                height: width
                radius: width / 2
                color: root.color
                opacity: (index + 1) / 8
            }
        }
    }
    Timer {
        interval: Motion.spinnerStep
        repeat: true
        running: root.visible && !Motion.reduced
        onTriggered: dots.rotation = (dots.rotation + 45) % 360
    }
}
