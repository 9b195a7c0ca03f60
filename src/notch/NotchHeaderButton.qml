import QtQuick
import Brimlight.Theme

// A round icon button of the header row.
Item {
    id: root

    required property string systemImage
    required property string help
    required property theme colors
    property bool tinted: false
    readonly property bool lit: hover.hovered || activeFocus

    signal clicked

    width: 24
    height: 24
    scale: lit && !Motion.reduced ? 1.08 : 1
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: help
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

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
        border.color: root.activeFocus ? root.colors.accent : Qt.rgba(1, 1, 1, root.lit ? 0.25 : 0.08)
    }
    Symbol {
        anchors.centerIn: parent
        name: root.systemImage
        size: 11
        color: root.tinted ? root.colors.accent : root.lit ? root.colors.textPrimary : root.colors.textSecondary
    }
    HoverHandler {
        id: hover
    }
    Tap {
        onTapped: root.clicked()
    }
    ToolTipLabel {
        text: root.help
        shown: hover.hovered
        colors: root.colors
        anchors.top: parent.bottom
        anchors.topMargin: 5
        anchors.right: parent.right
    }
}
