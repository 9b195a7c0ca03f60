pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Notch

// The status item's menu, opened at a place of the panel.
FocusScope {
    id: root

    required property PanelMenu entries
    required property GridViewState viewState
    required property ThemeStore theme
    // What it was opened from by a key.
    property Item opener
    property point place
    property bool isOpen: false
    readonly property bool takesKeyboard: true
    readonly property rect menuRect: isOpen ? Qt.rect(menu.x, menu.y, menu.width, menu.height) : Qt.rect(0, 0, 0, 0)

    signal closed

    function openAt(where: point, from: Item): void {
        entries.aboutToOpen();
        opener = from;
        place = where;
        isOpen = true;
        menu.takeFocus();
    }
    function close(): void {
        // The focus leaves the entries before they go.
        closed();
        isOpen = false;
    }

    Connections {
        target: root.viewState

        function onDismissed() {
            root.opener = null;
            if (root.isOpen)
                root.close();
        }
    }

    visible: isOpen
    Keys.onEscapePressed: close()

    // A click anywhere else closes.
    Tap {
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onTapped: root.close()
    }

    MenuPanel {
        id: menu

        readonly property real widest: Math.max(...Array.from(rows.children, entry => entry.implicitWidth))

        // The surface can still be growing when the menu opens.
        x: Math.max(4, Math.min(root.place.x, root.width - width - 4))
        y: Math.max(4, Math.min(root.place.y, root.height - height - 4))
        width: Math.max(implicitWidth, widest + 10)
        height: implicitHeight
        colors: root.theme.shown
        Accessible.name: "Brimlight"

        Column {
            id: rows

            width: parent.width

            Repeater {
                model: root.entries

                MenuEntry {
                    id: entry

                    required property int index
                    required property string title
                    required property bool startsGroup
                    required property bool isCheckable
                    required property bool isChecked

                    width: parent.width
                    colors: root.theme.shown
                    text: title
                    checkable: isCheckable
                    checked: isChecked
                    onClicked: {
                        root.close();
                        root.entries.choose(index);
                    }

                    Rectangle {
                        width: parent.width
                        height: 1
                        visible: entry.startsGroup
                        color: root.theme.shown.separator
                    }
                }
            }
        }
    }
}
