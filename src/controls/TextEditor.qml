pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// A text of many lines that fills its place and is scrolled where it is longer.
FocusScope {
    id: root

    // For screen readers.
    required property string label
    required property theme colors
    property alias text: edit.text
    property string placeholder
    property alias font: edit.font
    property alias readOnly: edit.readOnly
    property alias cursorPosition: edit.cursorPosition
    readonly property alias selectedText: edit.selectedText
    property bool available: true

    // What the user has typed, at every change.
    signal edited(string text)

    function selectAll(): void {
        edit.selectAll();
    }

    implicitWidth: 200
    implicitHeight: 80
    enabled: available
    opacity: available ? 1 : 0.4

    Flickable {
        id: flickable

        readonly property bool scrollsByWheel: true

        // Keeps the caret in sight.
        function follow(caret: rect): void {
            if (contentY >= caret.y)
                contentY = caret.y;
            else if (contentY + height <= caret.y + caret.height)
                contentY = caret.y + caret.height - height;
        }

        anchors.fill: parent
        clip: true
        contentWidth: width
        contentHeight: edit.height
        flickableDirection: Flickable.VerticalFlick
        boundsBehavior: Flickable.StopAtBounds
        // A drag selects.
        interactive: false

        TextEdit {
            id: edit

            width: flickable.width - 6
            height: Math.max(implicitHeight, flickable.height)
            focus: true
            selectByMouse: true
            // The menu takes the focus; anything else ends the selection.
            persistentSelection: true
            activeFocusOnTab: true
            // Tab goes on to the next control.
            Keys.priority: Keys.BeforeItem
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            Keys.onMenuPressed: menu.openAt(Qt.point(cursorRectangle.x, cursorRectangle.y + cursorRectangle.height))
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            color: root.colors.textPrimary
            selectionColor: root.colors.accent
            selectedTextColor: root.colors.textOnAccent
            font: Fonts.body
            Accessible.role: Accessible.EditableText
            Accessible.name: root.label
            Accessible.description: root.placeholder
            Accessible.editable: true
            Accessible.multiLine: true
            Accessible.focusable: true
            onActiveFocusChanged: {
                if (!activeFocus && !menu.open)
                    deselect();
            }
            onCursorRectangleChanged: flickable.follow(cursorRectangle)
            onTextChanged: {
                if (activeFocus || menu.open)
                    root.edited(text);
            }

            MouseArea {
                anchors.fill: parent
                acceptedButtons: Qt.RightButton
                cursorShape: Qt.IBeamCursor
                onClicked: mouse => menu.openAt(Qt.point(mouse.x, mouse.y))
            }
        }
        WheelHandler {
            onWheel: event => flickable.contentY = Math.max(0, Math.min(flickable.contentHeight - flickable.height, flickable.contentY - event.angleDelta.y / 2))
        }
    }
    Text {
        anchors.fill: parent
        visible: edit.length === 0 && edit.preeditText === ""
        wrapMode: Text.Wrap
        text: root.placeholder
        color: root.colors.textSecondary
        opacity: 0.8
        font: edit.font
    }
    ScrollMark {
        x: parent.width - 3
        target: flickable
        colors: root.colors
    }
    FocusRing {
        target: edit
        corner: 7
        border.color: root.colors.textPrimary
    }
    EditMenu {
        id: menu

        anchorItem: edit
        target: edit
        colors: root.colors
        label: root.label
        selected: edit.selectedText !== ""
        undoes: edit.canUndo
        pastes: edit.canPaste
        empty: edit.length === 0
        onUndo: edit.undo()
        onCut: edit.cut()
        onCopy: edit.copy()
        onPaste: edit.paste()
        onSelectAll: edit.selectAll()
        onOpenChanged: {
            if (!open && !edit.activeFocus)
                edit.deselect();
        }
    }
}
