pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// One line of text. It is a scope of its own: who gives it the focus gives it to the text.
FocusScope {
    id: root

    // For screen readers.
    required property string label
    required property theme colors
    property alias text: input.text
    property string placeholder
    property alias font: input.font
    property alias maximumLength: input.maximumLength
    property alias horizontalAlignment: input.horizontalAlignment
    property alias inputMethodHints: input.inputMethodHints
    property alias validator: input.validator
    property alias readOnly: input.readOnly
    property alias cursorPosition: input.cursorPosition
    readonly property alias selectedText: input.selectedText
    // Without its ground, where it stands on one already.
    property bool plain: false
    property bool available: true

    // What the user has typed, at every change.
    signal edited(string text)
    // Return was pressed.
    signal accepted
    // Return, or the focus went elsewhere.
    signal finished

    function selectAll(): void {
        input.selectAll();
    }
    function clear(): void {
        input.clear();
    }

    implicitWidth: 120
    implicitHeight: 24
    enabled: available
    opacity: available ? 1 : 0.4

    Rectangle {
        anchors.fill: parent
        radius: 7
        visible: !root.plain
        color: Qt.alpha(root.colors.textPrimary, input.activeFocus ? 0.1 : hover.hovered ? 0.09 : 0.07)
        border.color: Qt.alpha(root.colors.textPrimary, input.activeFocus ? 0.35 : 0.1)
    }
    Text {
        anchors.fill: input
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: input.horizontalAlignment
        visible: input.length === 0 && input.preeditText === ""
        elide: Text.ElideRight
        text: root.placeholder
        color: root.colors.textSecondary
        opacity: 0.8
        font: input.font
    }
    TextInput {
        id: input

        anchors.fill: parent
        anchors.leftMargin: root.plain ? 0 : 8
        anchors.rightMargin: root.plain ? 0 : 8
        verticalAlignment: TextInput.AlignVCenter
        focus: true
        clip: true
        selectByMouse: true
        // The menu takes the focus; anything else ends the selection.
        persistentSelection: true
        activeFocusOnTab: true
        color: root.colors.textPrimary
        selectionColor: root.colors.accent
        selectedTextColor: root.colors.textOnAccent
        font: Fonts.label
        Accessible.role: Accessible.EditableText
        Accessible.name: root.label
        Accessible.description: root.placeholder
        Accessible.editable: true
        Accessible.focusable: true
        Keys.onMenuPressed: menu.openAt(Qt.point(cursorRectangle.x, height))
        onActiveFocusChanged: {
            if (!activeFocus && !menu.open)
                deselect();
        }
        onTextEdited: root.edited(text)
        onAccepted: root.accepted()
        onEditingFinished: root.finished()

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.RightButton
            cursorShape: Qt.IBeamCursor
            onClicked: mouse => menu.openAt(Qt.point(mouse.x, mouse.y))
        }
    }
    FocusRing {
        target: input
        corner: 7
        border.color: root.colors.textPrimary
    }
    HoverHandler {
        id: hover
    }
    EditMenu {
        id: menu

        anchorItem: input
        target: input
        colors: root.colors
        label: root.label
        selected: input.selectedText !== ""
        undoes: input.canUndo
        pastes: input.canPaste
        empty: input.length === 0
        onUndo: input.undo()
        onCut: input.cut()
        onCopy: input.copy()
        onPaste: input.paste()
        onSelectAll: input.selectAll()
        onOpenChanged: {
            if (!open && !input.activeFocus)
                input.deselect();
        }
    }
}
