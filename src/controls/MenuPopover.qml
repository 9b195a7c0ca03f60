pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// A menu that opens beside a control, or where something was clicked. Arrows go round within it.
PopoverItem {
    id: root

    required property theme colors
    required property string label
    default property alias entries: column.data
    // What shows as chosen; keys begin there.
    property Item chosen: null
    property real leastWidth: 0
    readonly property real widest: Math.max(0, ...Array.from(column.children, entry => entry.visible ? entry.implicitWidth : 0))

    function enter(): void {
        root.nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason);
    }

    width: Math.max(leastWidth, widest + 10)
    height: column.implicitHeight + 10
    firstItem: InputModality.isKeyboard ? chosen : null
    onEntered: enter()
    Accessible.role: Accessible.PopupMenu
    Accessible.name: label
    Keys.onDownPressed: enter()
    Keys.onTabPressed: enter()
    Keys.onUpPressed: enter()

    MenuSurface {
        anchors.fill: parent
        colors: root.colors
    }
    Column {
        id: column

        x: 5
        y: 5
        width: root.width - 10
    }
}
