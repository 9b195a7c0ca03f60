pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
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
    color: Qt.alpha(colors.textPrimary, 0.05)
    border.color: Qt.alpha(colors.textPrimary, 0.07)
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Symbol {
        anchors.verticalCenter: heading.verticalCenter
        x: 14
        name: root.symbol
        size: 12
        color: root.colors.accent
    }
    Heading {
        id: heading

        x: 36
        y: 12
        width: root.width - x - 14
        colors: root.colors
        text: root.title
    }
    Column {
        id: column

        x: 14
        y: heading.y + heading.height + 10
        width: root.width - 28
        spacing: 8
    }
}
