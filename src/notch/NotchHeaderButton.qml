pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Grid
import Brimlight.Theme

// A round icon button of the header row.
AbstractButton {
    id: root

    required property string systemImage
    required property string help
    required property theme colors
    property bool tinted: false
    readonly property bool lit: hovered || keyed
    // From 0 to 1, and for a moment beyond.
    property real glow: lit ? 1 : 0

    label: help
    width: 24
    height: 24
    scale: Motion.reduced ? 1 : 1 + 0.08 * glow

    Behavior on glow {
        MotionAnimation {
            movement: Motion.headerHover
        }
    }

    DropShadow {
        anchors.fill: parent
        visible: opacity > 0
        corner: 12
        radius: 4
        color: root.colors.accent
        opacity: 0.25 * root.glow
    }
    Rectangle {
        anchors.fill: parent
        radius: 12
        color: Qt.rgba(1, 1, 1, 0.06 + 0.09 * root.glow)
        border.width: 0.8
        border.color: Qt.rgba(1, 1, 1, 0.08 + 0.17 * root.glow)
    }
    FocusRing {
        border.color: root.colors.textPrimary
    }
    Symbol {
        anchors.centerIn: parent
        name: root.systemImage
        size: 10
        weight: Font.Bold
        color: root.tinted ? root.colors.accent : root.lit ? root.colors.textPrimary : root.colors.textSecondary

        Behavior on color {
            MotionAnimation {
                movement: Motion.headerHover
            }
        }
    }
    ToolTipLabel {
        text: root.help
        shown: root.lit
        colors: root.colors
        anchors.top: parent.bottom
        anchors.topMargin: 5
        anchors.right: parent.right
    }
}
