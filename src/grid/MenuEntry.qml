import QtQuick
import Brimlight.Theme

// One line of a menu.
Item {
    id: root

    required property string text
    required property ThemeStore theme
    property bool checked: false
    property bool destructive: false
    property bool opensSubmenu: false

    signal triggered

    implicitWidth: label.implicitWidth + 46
    implicitHeight: 24
    activeFocusOnTab: true
    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.checked: checked
    Accessible.onPressAction: triggered()
    Keys.onReturnPressed: triggered()
    Keys.onEnterPressed: triggered()
    Keys.onSpacePressed: triggered()
    Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    Keys.onRightPressed: {
        if (opensSubmenu)
            triggered();
    }

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: root.theme.current.accent
        visible: hover.hovered || root.activeFocus
    }
    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        x: 7
        visible: root.checked
        name: "checkmark"
        size: 10
        color: label.color
    }
    Text {
        id: label

        anchors.verticalCenter: parent.verticalCenter
        x: 23
        text: root.text
        color: root.destructive && !hover.hovered ? "#FF453A" : root.theme.current.textPrimary
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
        color: label.color
    }
    HoverHandler {
        id: hover
    }
    Tap {
        onTapped: root.triggered()
    }
}
