pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// What every button has: Tab reaches it, and a tap, Return, Space or a screen reader presses it.
Item {
    id: root

    // For screen readers.
    property string label
    property int role: Accessible.Button
    // What is not is dimmed, and cannot be pressed.
    property bool available: true
    // A line of a list may be one that nothing comes of.
    property bool pressable: true
    readonly property alias hovered: hover.hovered
    readonly property alias pressed: tap.pressed
    readonly property bool keyed: activeFocus && InputModality.isKeyboard

    signal clicked

    enabled: available
    opacity: available ? 1 : 0.4
    activeFocusOnTab: true
    Accessible.role: role
    Accessible.name: label
    Accessible.focusable: true
    Accessible.onPressAction: {
        if (available)
            clicked();
    }
    Keys.onPressed: event => {
        const presses = root.pressable && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space);
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

        enabled: root.pressable
        onTapped: root.clicked()
    }
}
