pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// An arrow and a rate.
Item {
    id: root

    required property theme colors
    required property string symbol
    required property string text
    property color tint: colors.accent
    property font style: Fonts.subtitle

    implicitWidth: arrow.width + 5 + value.implicitWidth
    implicitHeight: value.implicitHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Symbol {
        id: arrow

        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: root.style.pixelSize * 0.8
        color: root.tint
    }
    Text {
        id: value

        anchors.left: arrow.right
        anchors.leftMargin: 5
        anchors.right: parent.right
        text: root.text
        color: root.colors.textPrimary
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Fonts.tiny.pixelSize
        font: Fonts.strong(root.style)
    }
}
