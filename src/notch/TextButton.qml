import QtQuick
import Brimlight.Theme

// A capsule with a text.
Item {
    id: root

    required property string text
    required property theme colors
    property bool prominent: false

    signal clicked

    implicitWidth: label.implicitWidth + 28
    implicitHeight: 28
    scale: tap.pressed && !Motion.reduced ? 0.96 : 1
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: root.prominent ? Qt.alpha(root.colors.accent, hover.hovered ? 1 : 0.88) : Qt.rgba(1, 1, 1, hover.hovered ? 0.14 : 0.07)
        border.width: root.activeFocus ? 2 : 1
        border.color: root.activeFocus ? root.colors.textPrimary : Qt.rgba(1, 1, 1, 0.1)
    }
    Text {
        id: label

        anchors.centerIn: parent
        text: root.text
        color: root.prominent ? "white" : root.colors.textPrimary
        font.family: Fonts.rounded
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
    HoverHandler {
        id: hover
    }
    Tap {
        id: tap

        onTapped: root.clicked()
    }
}
