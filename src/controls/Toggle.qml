pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A switch at the end of its label.
AbstractButton {
    id: root

    required property bool on
    required property theme colors

    role: Accessible.CheckBox
    implicitHeight: Math.max(24, caption.height)
    Accessible.checkable: true
    Accessible.checked: on
    Accessible.onToggleAction: clicked()

    Text {
        id: caption

        anchors.left: parent.left
        anchors.right: track.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: root.label
        color: root.colors.textPrimary
        wrapMode: Text.WordWrap
        font: Fonts.label
    }
    Rectangle {
        id: track

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: 32
        height: 18
        radius: 9
        color: root.on ? root.colors.accent : Qt.alpha(root.colors.textPrimary, root.hovered ? 0.24 : 0.18)

        Behavior on color {
            MotionAnimation {
                movement: Motion.quickFade
            }
        }

        FocusRing {
            target: root
            border.color: root.colors.textPrimary
        }
        Rectangle {
            x: root.on ? parent.width - width - 2 : 2
            y: 2
            width: 14
            height: 14
            radius: 7
            color: root.on ? root.colors.textOnAccent : "white"
            border.color: Qt.rgba(0, 0, 0, 0.18)

            Behavior on x {
                MotionAnimation {
                    movement: Motion.selection
                }
            }
        }
    }
}
