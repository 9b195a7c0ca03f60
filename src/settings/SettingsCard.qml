pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A group of controls under a title.
Rectangle {
    id: root

    required property string title
    required property string symbol
    required property theme colors
    default property alias controls: column.data

    implicitHeight: column.y + column.height + 14
    radius: 14
    color: Qt.rgba(1, 1, 1, 0.05)
    border.color: Qt.rgba(1, 1, 1, 0.07)
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Symbol {
        anchors.verticalCenter: heading.verticalCenter
        x: 14
        name: root.symbol
        size: 12
        color: root.colors.accent
    }
    Text {
        id: heading

        x: 36
        y: 12
        width: root.width - x - 14
        elide: Text.ElideRight
        text: root.title
        color: root.colors.textPrimary
        font.family: Fonts.rounded
        font.pixelSize: 12
        font.weight: Font.Bold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Column {
        id: column

        x: 14
        y: heading.y + heading.height + 10
        width: root.width - 28
        spacing: 8
    }
}
