pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// One line of a list: perhaps a circle to be checked or a symbol, the text, perhaps something quiet behind it, and its
// buttons at the end. Pressing it is optional.
AbstractButton {
    id: root

    required property string text
    required property theme colors
    // Behind the text.
    property string detail
    property string symbol
    property color symbolColor: colors.accent
    property real symbolSize: 12
    // A circle in front that `toggled` is told of.
    property bool checkable: false
    property bool checked: false
    // The line itself is a button.
    property bool clickable: false
    property int lines: 1
    property font font: Fonts.label
    // Of the whole line, behind everything.
    property bool framed: false
    default property alias buttons: row.data

    signal toggled

    label: detail === "" ? text : text + ", " + detail
    role: clickable ? Accessible.Button : Accessible.ListItem
    activeFocusOnTab: clickable
    implicitWidth: 160
    implicitHeight: Math.max(22, title.height + 6)
    pressable: clickable

    Rectangle {
        anchors.fill: parent
        radius: 6
        visible: root.framed || (root.clickable && root.hovered)
        color: Qt.alpha(root.colors.textPrimary, root.clickable && root.hovered ? 0.1 : 0.05)
    }
    CheckBox {
        id: check

        x: 4
        anchors.verticalCenter: parent.verticalCenter
        width: 14
        visible: root.checkable
        round: true
        checked: root.checked
        colors: root.colors
        label: ""
        Accessible.name: root.text
        onClicked: root.toggled()
    }
    Symbol {
        id: mark

        anchors.verticalCenter: parent.verticalCenter
        x: root.checkable ? 24 : 5
        width: root.symbolSize + 2
        visible: root.symbol !== ""
        name: root.symbol
        size: root.symbolSize
        color: root.symbolColor
    }
    Text {
        id: title

        anchors.verticalCenter: parent.verticalCenter
        x: mark.visible ? mark.x + mark.width + 5 : root.checkable ? 24 : 5
        width: Math.max(0, behind.x - x - 4)
        text: root.text
        textFormat: Text.PlainText
        wrapMode: root.lines > 1 ? Text.Wrap : Text.NoWrap
        maximumLineCount: root.lines
        elide: Text.ElideRight
        color: root.colors.textPrimary
        opacity: root.checkable && root.checked ? 0.55 : 1
        font: root.checkable && root.checked ? Fonts.struck(root.font) : root.font
    }
    Text {
        id: behind

        anchors.verticalCenter: parent.verticalCenter
        x: row.x - width - (row.width > 0 ? 4 : 0)
        visible: text !== ""
        text: root.detail
        textFormat: Text.PlainText
        color: root.colors.textSecondary
        font: Fonts.note
    }
    Row {
        id: row

        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4
    }
    FocusRing {
        corner: 6
        gap: -2
        border.color: root.colors.textPrimary
    }
}
