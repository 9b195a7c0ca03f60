pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// What can be done with a text, where it was clicked with the right button or under its caret.
MenuPopover {
    id: root

    // A TextInput or a TextEdit.
    required property Item target
    required property bool selected
    required property bool undoes
    required property bool pastes
    required property bool empty

    signal undo
    signal cut
    signal copy
    signal paste
    signal selectAll

    // The text has the focus again before anything is done to it, and keeps what is selected.
    function act(action: var): void {
        target.forceActiveFocus(Qt.PopupFocusReason);
        open = false;
        action();
    }

    MenuEntry {
        width: root.width - 10
        colors: root.colors
        available: root.undoes
        text: qsTr("Undo")
        onClicked: root.act(root.undo)
    }
    MenuEntry {
        width: root.width - 10
        colors: root.colors
        available: root.selected
        text: qsTr("Cut")
        onClicked: root.act(root.cut)
    }
    MenuEntry {
        width: root.width - 10
        colors: root.colors
        available: root.selected
        text: qsTr("Copy")
        onClicked: root.act(root.copy)
    }
    MenuEntry {
        width: root.width - 10
        colors: root.colors
        available: root.pastes
        text: qsTr("Paste")
        onClicked: root.act(root.paste)
    }
    MenuEntry {
        width: root.width - 10
        colors: root.colors
        available: !root.empty
        text: qsTr("Select All")
        onClicked: root.act(root.selectAll)
    }
}
