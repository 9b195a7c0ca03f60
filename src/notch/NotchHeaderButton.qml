import QtQuick
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

    label: help
    width: 24
    height: 24
    scale: lit && !Motion.reduced ? 1.08 : 1

    Behavior on scale {
        NumberAnimation {
            duration: Motion.headerHover.duration
            easing: Motion.headerHover.easing
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: 12
        color: Qt.rgba(1, 1, 1, root.lit ? 0.15 : 0.06)
        border.width: 0.8
        border.color: Qt.rgba(1, 1, 1, root.lit ? 0.25 : 0.08)
    }
    FocusRing {
        border.color: root.colors.textPrimary
    }
    Symbol {
        anchors.centerIn: parent
        name: root.systemImage
        size: 11
        color: root.tinted ? root.colors.accent : root.lit ? root.colors.textPrimary : root.colors.textSecondary
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
