pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// One preset: its surface with a tile and its texts, the accent, and its name.
AbstractButton {
    id: root

    required property theme preset
    required property bool marked
    required property theme colors

    label: preset.name
    role: Accessible.RadioButton
    implicitHeight: picture.height + 5 + caption.height
    scale: pressed && !Motion.reduced ? 0.96 : 1
    Accessible.checkable: true
    Accessible.checked: marked
    Accessible.onToggleAction: clicked()

    Rectangle {
        id: picture

        width: parent.width
        height: 46
        radius: 11
        color: Qt.alpha(root.preset.surface, 1)
        border.width: 1
        border.color: Qt.rgba(1, 1, 1, root.hovered ? 0.34 : 0.14)

        Rectangle {
            x: 7
            y: 7
            width: parent.width - 14
            height: 32
            radius: 8
            color: root.preset.surfaceElevated
            border.color: root.preset.separator
        }
        Rectangle {
            x: 14
            y: 14
            width: 18
            height: 18
            radius: 9
            color: root.preset.accent
        }
        Rectangle {
            x: 39
            y: 17
            width: parent.width - 39 - 16
            height: 4
            radius: 2
            color: root.preset.textPrimary
        }
        Rectangle {
            x: 39
            y: 25
            width: (parent.width - 39 - 16) * 0.7
            height: 4
            radius: 2
            color: root.preset.textSecondary
        }
        // The mark of the one in force.
        Rectangle {
            anchors.fill: parent
            anchors.margins: -3
            radius: 14
            color: "transparent"
            border.width: 2
            border.color: root.colors.accent
            opacity: root.marked ? 1 : 0

            Behavior on opacity {
                MotionAnimation {
                    movement: Motion.selection
                }
            }
        }
        Symbol {
            x: 16
            y: 16
            width: 14
            height: 14
            name: "checkmark"
            size: 12
            color: Qt.alpha(root.preset.surface, 1)
            scale: root.marked ? 1 : 0
            visible: scale > 0

            Behavior on scale {
                MotionAnimation {
                    movement: Motion.selection
                }
            }
        }
        FocusRing {
            target: root
            corner: 14
            gap: 2
            border.color: root.colors.textPrimary
        }
    }
    Text {
        id: caption

        anchors.top: picture.bottom
        anchors.topMargin: 5
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
        text: root.preset.name
        color: root.marked ? root.colors.textPrimary : root.colors.textSecondary
        font: root.marked ? Fonts.strong(Fonts.note) : Fonts.note
    }
}
