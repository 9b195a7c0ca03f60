pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// One line of a menu. Only one is lit: the one that has the focus, or the one under the pointer.
AbstractButton {
    id: root

    required property string text
    required property ThemeStore theme
    property bool checkable: false
    property bool checked: false
    property bool destructive: false
    property bool opensSubmenu: false
    property bool submenuOpen: false
    readonly property bool lit: submenuOpen || (InputModality.isKeyboard ? activeFocus : hovered)

    // Up and down stay within the menu and go round.
    function focusNext(forward: bool): void {
        let item = root.nextItemInFocusChain(forward);
        while (item.parent !== root.parent)
            item = item.nextItemInFocusChain(forward);
        item.forceActiveFocus(Qt.TabFocusReason);
    }

    label: text
    role: Accessible.MenuItem
    implicitWidth: caption.implicitWidth + 46
    implicitHeight: 24
    Accessible.checkable: checkable
    Accessible.checked: checked
    Keys.onDownPressed: focusNext(true)
    Keys.onTabPressed: focusNext(true)
    Keys.onUpPressed: focusNext(false)
    Keys.onBacktabPressed: focusNext(false)
    Keys.onRightPressed: event => {
        event.accepted = opensSubmenu && !submenuOpen;
        if (event.accepted)
            clicked();
    }

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: root.theme.shown.accent
        visible: root.lit
    }
    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        x: 7
        visible: root.checked
        name: "checkmark"
        size: 10
        color: caption.color
    }
    Text {
        id: caption

        anchors.verticalCenter: parent.verticalCenter
        x: 23
        text: root.text
        color: root.lit ? root.theme.shown.textOnAccent : root.destructive ? "#FF453A" : root.theme.shown.textPrimary
        font.family: Fonts.rounded
        font.pixelSize: 12
    }
    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: 7
        visible: root.opensSubmenu
        name: "chevron.right"
        size: 9
        color: caption.color
    }
}
