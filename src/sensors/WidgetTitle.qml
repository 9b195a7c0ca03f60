pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// The symbol and the name of a widget.
Row {
    id: root

    required property theme colors
    required property string symbol
    required property string text
    property color tint: colors.accent

    spacing: 5
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: 11
        color: root.tint
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        color: root.colors.textPrimary
        font.family: Fonts.rounded
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
}
