pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid

// The context menu of one tile, with the sizes in a menu of their own beside it.
FocusScope {
    id: root

    required property WidgetCatalog catalog
    required property GridViewState viewState
    required property ThemeStore theme
    property string instanceId
    property string kind
    // The tile it was opened for.
    property Item opener
    readonly property bool takesKeyboard: true
    readonly property string currentSize: catalog.sizeOf(instanceId)
    property bool sizesOpen: false
    readonly property bool isOpen: instanceId !== ""
    readonly property rect menuRect: isOpen ? Qt.rect(menu.x, menu.y, menu.width, menu.height) : Qt.rect(0, 0, 0, 0)
    readonly property rect sizesRect: sizesOpen ? Qt.rect(sizes.x, sizes.y, sizes.width, sizes.height) : Qt.rect(0, 0, 0, 0)

    signal closed

    function openFor(tile: Item, id: string, widgetKind: string, at: point): void {
        opener = tile;
        instanceId = id;
        kind = widgetKind;
        sizesOpen = false;
        menu.x = Math.max(4, Math.min(at.x, width - menu.width - 4));
        menu.y = Math.max(4, Math.min(at.y, height - menu.height - 4));
        menu.takeFocus();
    }
    function openSizes(): void {
        sizesOpen = true;
        sizes.takeFocus();
    }
    function closeSizes(): void {
        sizesOpen = false;
        sizeEntry.forceActiveFocus(Qt.TabFocusReason);
    }
    function close(): void {
        // The focus leaves the entries before they go.
        closed();
        instanceId = "";
        sizesOpen = false;
    }
    // Its tile is no longer there to have the focus.
    function dismiss(): void {
        opener = null;
        if (isOpen)
            close();
    }

    Connections {
        target: root.viewState

        function onDismissed() {
            root.dismiss();
        }
    }

    visible: isOpen
    Keys.onEscapePressed: sizesOpen ? closeSizes() : close()
    Keys.onLeftPressed: {
        if (sizesOpen)
            closeSizes();
    }

    // A click anywhere else closes.
    Tap {
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onTapped: root.close()
    }

    MenuPanel {
        id: menu

        width: implicitWidth
        height: implicitHeight
        colors: root.theme.shown
        Accessible.name: root.catalog.displayName(root.kind)

        MenuEntry {
            width: parent.width
            visible: root.catalog.hasSettings(root.kind)
            colors: root.theme.shown
            text: "Settings (Flip)"
            onClicked: {
                const id = root.instanceId;
                root.close();
                root.viewState.toggleFlip(id);
            }
        }
        Rectangle {
            width: parent.width
            height: 1
            visible: root.catalog.hasSettings(root.kind)
            color: root.theme.shown.separator
        }
        MenuEntry {
            id: sizeEntry

            width: parent.width
            visible: sizeRepeater.count > 0
            colors: root.theme.shown
            text: "Size"
            opensSubmenu: true
            submenuOpen: root.sizesOpen
            onClicked: root.sizesOpen ? root.closeSizes() : root.openSizes()
        }
        MenuEntry {
            width: parent.width
            colors: root.theme.shown
            text: "Remove"
            destructive: true
            onClicked: {
                const id = root.instanceId;
                root.close();
                root.catalog.remove(id);
            }
        }
    }

    MenuPanel {
        id: sizes

        width: 138
        height: implicitHeight
        x: menu.x + menu.width + 4 + width > root.width ? menu.x - width - 4 : menu.x + menu.width + 4
        y: Math.min(menu.y + sizeEntry.y, root.height - height - 4)
        visible: root.sizesOpen
        colors: root.theme.shown
        Accessible.name: "Size"

        Repeater {
            id: sizeRepeater

            model: root.isOpen ? root.catalog.sizes(root.kind) : []

            MenuEntry {
                required property var modelData

                width: parent.width
                colors: root.theme.shown
                text: modelData.label
                checkable: true
                checked: modelData.size === root.currentSize
                onClicked: {
                    root.catalog.setSize(root.instanceId, modelData.size);
                    root.close();
                }
            }
        }
    }
}
