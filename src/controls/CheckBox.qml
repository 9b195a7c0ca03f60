pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A box that is checked or not, in front of its label.
AbstractButton {
    id: root

    required property bool checked
    required property theme colors
    // A circle, as in lists of what is to be done.
    property bool round: false

    role: Accessible.CheckBox
    implicitWidth: caption.x + caption.implicitWidth
    implicitHeight: 18
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onToggleAction: clicked()

    Rectangle {
        id: box

        anchors.verticalCenter: parent.verticalCenter
        width: 14
        height: 14
        radius: root.round ? 7 : 4
        color: root.checked ? root.colors.accent : Qt.alpha(root.colors.textPrimary, root.hovered ? 0.16 : 0.08)
        border.width: root.checked ? 0 : 1
        border.color: Qt.alpha(root.colors.textPrimary, 0.35)

        Behavior on color {
            MotionAnimation {
                movement: Motion.quickFade
            }
        }

        Symbol {
            anchors.centerIn: parent
            visible: root.checked
            name: "checkmark"
            size: 9
            weight: Font.Bold
            color: root.colors.textOnAccent
        }
        FocusRing {
            target: root
            corner: parent.radius
            border.color: root.colors.textPrimary
        }
    }
    Text {
        id: caption

        anchors.left: box.right
        anchors.leftMargin: text === "" ? 0 : 7
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.label
        color: root.colors.textPrimary
        elide: Text.ElideRight
        font: Fonts.label
    }
}
