pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// The button of one tab.
AbstractButton {
    id: root

    required property string title
    required property string symbol
    required property bool active
    required property theme colors
    readonly property color tint: active ? colors.accent : hovered ? colors.textPrimary : colors.textSecondary

    label: title
    role: Accessible.PageTab
    implicitWidth: content.width + 24
    implicitHeight: 26
    Accessible.selectable: true
    Accessible.selected: active

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: root.active ? Qt.alpha(root.colors.accent, 0.16) : Qt.rgba(1, 1, 1, root.hovered ? 0.1 : 0.05)
    }
    FocusRing {
        border.color: root.colors.textPrimary
    }
    Row {
        id: content

        anchors.centerIn: parent
        spacing: 6

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            size: 11
            color: root.tint
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
            color: root.tint
            font: Fonts.strong(Fonts.label)
        }
    }
}
