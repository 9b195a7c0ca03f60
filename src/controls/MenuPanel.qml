pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// The surface of a menu around its entries.
Item {
    id: root

    required property theme colors
    default property alias entries: column.data

    // With keys the first entry is lit at once.
    function takeFocus(): void {
        const first = InputModality.isKeyboard ? root.nextItemInFocusChain() : root;
        first.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitWidth: 168
    implicitHeight: column.implicitHeight + 10
    Accessible.role: Accessible.PopupMenu
    Keys.onDownPressed: takeFocus()
    Keys.onTabPressed: takeFocus()
    Keys.onUpPressed: takeFocus()

    MenuSurface {
        anchors.fill: parent
        colors: root.colors
    }
    // Clicks between the entries must not reach what lies below.
    Tap {}

    Column {
        id: column

        x: 5
        y: 5
        width: root.width - 10
    }
}
