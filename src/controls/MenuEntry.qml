pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// One line of a menu. Only one is lit: the one that has the focus, or the one under the pointer.
AbstractButton {
    id: root

    required property string text
    required property theme colors
    property bool checkable: false
    property bool checked: false
    property bool destructive: false
    property bool opensSubmenu: false
    property bool submenuOpen: false
    // In front of the text, where there is no check mark.
    property string symbol
    property color symbolColor: textColor
    readonly property bool lit: submenuOpen || (InputModality.isKeyboard ? activeFocus : hovered)
    readonly property color textColor: lit ? colors.textOnAccent : destructive ? colors.critical : colors.textPrimary

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
        color: root.colors.accent
        visible: root.lit
    }
    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        x: 7
        visible: name !== ""
        name: root.checked ? "checkmark" : root.symbol
        size: 10
        color: root.checked || root.lit ? root.textColor : root.symbolColor
    }
    Text {
        id: caption

        anchors.verticalCenter: parent.verticalCenter
        x: 23
        width: Math.min(implicitWidth, root.width - x - (root.opensSubmenu ? 23 : 7))
        elide: Text.ElideRight
        text: root.text
        color: root.textColor
        font: Fonts.body
    }
    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: 7
        visible: root.opensSubmenu
        name: "chevron.right"
        size: 9
        color: root.textColor
    }
}
