pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// The symbol and the name of a widget.
Row {
    id: root

    required property theme colors
    property string symbol
    required property string text
    // Beyond it the name is cut short.
    property real maximumWidth: Infinity
    property color tint: colors.accent

    spacing: 5
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        visible: name !== ""
        name: root.symbol
        size: 11
        color: root.tint
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, root.maximumWidth - x)
        elide: Text.ElideRight
        text: root.text
        color: root.colors.textPrimary
        font: Fonts.strong(Fonts.body)
    }
}
