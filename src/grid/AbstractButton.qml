pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// What every button has: Tab reaches it, and a tap, Return, Space or a screen reader presses it.
Item {
    id: root

    // For screen readers.
    property string label
    property int role: Accessible.Button
    readonly property alias hovered: hover.hovered
    readonly property alias pressed: tap.pressed
    readonly property bool keyed: activeFocus && InputModality.isKeyboard

    signal clicked

    activeFocusOnTab: true
    Accessible.role: role
    Accessible.name: label
    Accessible.focusable: true
    Accessible.onPressAction: clicked()
    Keys.onPressed: event => {
        const presses = event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space;
        event.accepted = presses;
        // A key that is held must not go on to press what it has opened.
        if (presses && !event.isAutoRepeat)
            root.clicked();
    }
    onVisibleChanged: {
        if (!visible && activeFocus)
            root.nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason);
    }

    HoverHandler {
        id: hover
    }
    Tap {
        id: tap

        onTapped: root.clicked()
    }
}
