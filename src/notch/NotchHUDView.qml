pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Notch

// A change of volume or brightness, for a moment: icon, bar, percentage.
Item {
    id: root

    required property HUDFace face
    required property theme colors
    // Where it comes to rest.
    required property rect place
    // How far it stands above that.
    property real lift: height
    // The first movement needs something to start from.
    property bool isMade: false
    readonly property rect seen: visible && opacity > 0 ? Qt.rect(x, y, width, height) : Qt.rect(0, 0, 0, 0)

    x: place.x
    y: place.y - lift
    width: place.width
    height: place.height
    opacity: 0
    Component.onCompleted: isMade = true

    states: State {
        name: "shown"
        when: root.isMade && root.face.isShown

        PropertyChanges {
            root.opacity: 1
            root.lift: 0
        }
    }
    transitions: [
        Transition {
            to: "shown"

            MotionAnimation {
                properties: "opacity,lift"
                movement: Motion.hud
            }
        },
        Transition {
            to: ""

            SequentialAnimation {
                MotionAnimation {
                    property: "opacity"
                    movement: Motion.hudFade
                }
                PropertyAction {
                    property: "lift"
                }
            }
        }
    ]

    // Whatever the desktop shows here, the text must stand out.
    Rectangle {
        anchors.fill: parent
        radius: 10
        color: Qt.alpha(root.colors.surface, 1)
    }
    Rectangle {
        anchors.fill: parent
        radius: 10
        color: Qt.rgba(0, 0, 0, 0.25)
        border.color: Qt.rgba(1, 1, 1, 0.06)
        border.width: 0.8
    }
    Symbol {
        id: icon

        x: 10
        width: 14
        height: parent.height
        name: root.face.symbol
        size: 10
        weight: Font.Bold
        color: root.colors.accent
    }
    Rectangle {
        id: track

        anchors.left: icon.right
        anchors.right: percent.left
        anchors.margins: 8
        anchors.verticalCenter: parent.verticalCenter
        height: 4
        radius: 2
        color: Qt.rgba(1, 1, 1, 0.12)

        Rectangle {
            width: root.face.barWidth(root.face.level, parent.width)
            height: parent.height
            radius: parent.radius
            color: root.colors.accent
        }
    }
    Text {
        id: percent

        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        // Digits stand a little above the middle of their line.
        anchors.verticalCenterOffset: 0.5
        width: 24
        horizontalAlignment: Text.AlignRight
        text: root.face.percent
        color: root.colors.textPrimary
        font: Fonts.bold(Fonts.tiny)
    }
}
