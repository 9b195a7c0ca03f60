pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A capsule with a text.
AbstractButton {
    id: root

    required property string text
    required property theme colors
    property bool prominent: false
    // For rows of small ones, as on a tile.
    property bool compact: false

    label: text
    implicitWidth: caption.implicitWidth + (compact ? 16 : 28)
    implicitHeight: compact ? 20 : 28
    scale: pressed && !Motion.reduced ? 0.96 : 1

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: root.prominent ? Qt.alpha(root.colors.accent, root.hovered ? 1 : 0.88) : Qt.alpha(root.colors.textPrimary, root.hovered ? 0.14 : 0.07)
        border.color: Qt.alpha(root.colors.textPrimary, 0.1)
    }
    FocusRing {
        border.color: root.colors.textPrimary
    }
    Text {
        id: caption

        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 8)
        elide: Text.ElideRight
        text: root.text
        color: root.prominent ? root.colors.textOnAccent : root.colors.textPrimary
        font: root.compact ? Fonts.medium(Fonts.label) : Fonts.strong(Fonts.body)
    }
}
