pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// One choice of several, made in a menu that opens at the end of the label.
Item {
    id: root

    required property string label
    required property list<string> options
    // -1 when none is chosen.
    required property int current
    required property theme colors
    property bool showsLabel: true
    property bool available: true
    readonly property string text: options[current] ?? ""

    signal chosen(int index)

    implicitWidth: showsLabel ? caption.implicitWidth + 12 + field.implicitWidth : field.implicitWidth
    implicitHeight: Math.max(26, showsLabel ? caption.height : 0)

    Text {
        id: caption

        anchors.left: parent.left
        anchors.right: field.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        visible: root.showsLabel
        text: root.label
        color: root.colors.textPrimary
        wrapMode: Text.WordWrap
        font: Fonts.label
    }
    AbstractButton {
        id: field

        implicitWidth: root.showsLabel ? Math.max(120, value.implicitWidth + 38) : value.implicitWidth + 34
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: root.showsLabel ? implicitWidth : parent.width
        height: 24
        available: root.available
        label: root.label
        role: Accessible.ComboBox
        Accessible.description: root.text
        Keys.onDownPressed: menu.open = true
        Keys.onUpPressed: menu.open = true
        onClicked: menu.open = true

        Rectangle {
            anchors.fill: parent
            radius: 7
            color: Qt.alpha(root.colors.textPrimary, field.hovered ? 0.14 : 0.08)
            border.color: Qt.alpha(root.colors.textPrimary, 0.08)
        }
        FocusRing {
            corner: 7
            border.color: root.colors.textPrimary
        }
        Text {
            id: value

            x: 10
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - 34)
            elide: Text.ElideRight
            text: root.text
            color: root.colors.textPrimary
            font: Fonts.medium(Fonts.label)
        }
        Symbol {
            anchors.right: parent.right
            anchors.rightMargin: 9
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.down"
            size: 9
            color: root.colors.textSecondary
        }
    }
    MenuPopover {
        id: menu

        anchorItem: field
        alignsRight: true
        colors: root.colors
        label: root.label
        leastWidth: field.width
        chosen: entries.count > 0 ? entries.itemAt(Math.max(0, root.current)) : null

        Repeater {
            id: entries

            model: root.options

            MenuEntry {
                required property int index
                required property string modelData

                width: menu.width - 10
                colors: root.colors
                text: modelData
                checkable: true
                checked: index === root.current
                onClicked: {
                    const choice = index;
                    menu.open = false;
                    root.chosen(choice);
                }
            }
        }
    }
}
