pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// Something small to be filled in or looked up beside a control: it stands above the panel, may reach beyond it, and has
// the keyboard while it is open. Tab stays within it.
PopoverItem {
    id: root

    required property theme colors
    required property string label
    default property alias content: column.data
    property alias spacing: column.spacing
    property real padding: 10

    function focusFirst(): void {
        start.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason);
    }
    function focusLast(): void {
        end.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason);
    }

    width: 220
    height: column.implicitHeight + 2 * padding
    onEntered: focusFirst()
    Accessible.role: Accessible.Dialog
    Accessible.name: label
    Keys.onTabPressed: focusFirst()
    Keys.onBacktabPressed: focusLast()

    MenuSurface {
        anchors.fill: parent
        radius: 12
        colors: root.colors
    }
    Item {
        id: start

        activeFocusOnTab: root.open
        onActiveFocusChanged: {
            if (activeFocus)
                root.focusLast();
        }
    }
    Column {
        id: column

        x: root.padding
        y: root.padding
        width: root.width - 2 * root.padding
        spacing: 6
    }
    Item {
        id: end

        activeFocusOnTab: root.open
        onActiveFocusChanged: {
            if (activeFocus)
                root.focusFirst();
        }
    }
}
