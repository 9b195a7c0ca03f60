pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A capsule with a text.
AbstractButton {
    id: root

    required property string text
    required property theme colors
    property bool prominent: false

    label: text
    implicitWidth: caption.implicitWidth + 28
    implicitHeight: 28
    scale: pressed && !Motion.reduced ? 0.96 : 1

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: root.prominent ? Qt.alpha(root.colors.accent, root.hovered ? 1 : 0.88) : Qt.rgba(1, 1, 1, root.hovered ? 0.14 : 0.07)
        border.color: Qt.rgba(1, 1, 1, 0.1)
    }
    FocusRing {
        border.color: root.colors.textPrimary
    }
    Text {
        id: caption

        anchors.centerIn: parent
        text: root.text
        color: root.prominent ? root.colors.textOnAccent : root.colors.textPrimary
        font.family: Fonts.rounded
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
}
