pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme
import Brimlight.Grid

// One choice of several, made in a menu that opens at the end of the label. The menu stands in the overlay, which
// covers the view.
Item {
    id: root

    required property string label
    required property list<string> options
    // -1 when none is chosen.
    required property int current
    required property Item overlay
    required property ThemeStore theme
    readonly property theme colors: theme.shown
    readonly property string text: options[current] ?? ""

    signal chosen(int index)

    function open(): void {
        const below = field.mapToItem(overlay, field.width, field.height + 4);
        const above = below.y - field.height - 8 - menu.height;
        menu.x = Math.max(4, below.x - menu.width);
        menu.y = below.y + menu.height > overlay.height - 8 ? Math.max(4, above) : below.y;
        popup.visible = true;
        const first = InputModality.isKeyboard ? entries.itemAt(Math.max(0, current)) : menu;
        first.forceActiveFocus(Qt.TabFocusReason);
    }
    function close(): void {
        // The focus leaves the entries before they go.
        (InputModality.isKeyboard ? field : overlay).forceActiveFocus(Qt.TabFocusReason);
        popup.visible = false;
    }

    implicitHeight: Math.max(26, caption.height)
    // The settings go, with the panel or before it.
    onEnabledChanged: popup.visible = popup.visible && enabled

    Text {
        id: caption

        anchors.left: parent.left
        anchors.right: field.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: root.label
        color: root.colors.textPrimary
        wrapMode: Text.WordWrap
        font.family: Fonts.rounded
        font.pixelSize: 11
    }
    AbstractButton {
        id: field

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(120, value.implicitWidth + 38)
        height: 24
        label: root.label
        role: Accessible.ComboBox
        Accessible.description: root.text
        Keys.onDownPressed: root.open()
        Keys.onUpPressed: root.open()
        onClicked: root.open()

        Rectangle {
            anchors.fill: parent
            radius: 7
            color: Qt.rgba(1, 1, 1, field.hovered ? 0.14 : 0.08)
            border.color: Qt.rgba(1, 1, 1, 0.08)
        }
        FocusRing {
            corner: 7
            border.color: root.colors.textPrimary
        }
        Text {
            id: value

            x: 10
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: root.colors.textPrimary
            font.family: Fonts.rounded
            font.pixelSize: 11
            font.weight: Font.Medium
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

    Item {
        id: popup

        parent: root.overlay
        anchors.fill: parent
        visible: false
        Keys.onEscapePressed: root.close()

        Tap {
            acceptedButtons: Qt.LeftButton | Qt.RightButton
            onTapped: root.close()
        }
        // What lies below does not scroll away from under the menu.
        WheelHandler {}

        MenuPanel {
            id: menu

            readonly property real widest: Math.max(...Array.from(entryColumn.children, entry => entry.implicitWidth))

            width: Math.max(field.width, widest + 10)
            height: implicitHeight
            theme: root.theme
            Accessible.name: root.label

            Column {
                id: entryColumn

                width: parent.width

                Repeater {
                    id: entries

                    model: root.options

                    MenuEntry {
                        required property int index
                        required property string modelData

                        width: parent.width
                        theme: root.theme
                        text: modelData
                        checkable: true
                        checked: index === root.current
                        onClicked: {
                            const chosen = index;
                            root.close();
                            root.chosen(chosen);
                        }
                    }
                }
            }
        }
    }
}
