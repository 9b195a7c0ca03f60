pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A value from 0 to 1 under a knob. Each movement is told at once.
Item {
    id: root

    required property string label
    // What is stored; the knob stops at the ends.
    required property real position
    required property theme colors
    property bool available: true
    // Of the track behind the knob; without one it is filled up to the knob.
    property Gradient gradient: null
    readonly property real shown: Math.max(0, Math.min(1, position))

    // For screen readers, which may also set it.
    property real value: 0
    readonly property real minimumValue: 0
    readonly property real maximumValue: 1
    readonly property real stepSize: 0.01

    signal moved(real to)

    function moveBy(difference: real): void {
        moved(Math.max(0, Math.min(1, shown + difference)));
    }

    function pointAt(x: real): void {
        moved(Math.max(0, Math.min(1, (x - knob.width / 2) / (width - knob.width))));
    }

    implicitHeight: 22
    enabled: available
    opacity: available ? 1 : 0.4
    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: label
    Accessible.focusable: true
    Accessible.onIncreaseAction: moveBy(0.05)
    Accessible.onDecreaseAction: moveBy(-0.05)
    Keys.onLeftPressed: moveBy(-stepSize)
    Keys.onDownPressed: moveBy(-stepSize)
    Keys.onRightPressed: moveBy(stepSize)
    Keys.onUpPressed: moveBy(stepSize)
    Keys.onPressed: event => {
        const jumps = new Map([[Qt.Key_Home, -1], [Qt.Key_End, 1], [Qt.Key_PageUp, 0.1], [Qt.Key_PageDown, -0.1]]);
        event.accepted = jumps.has(event.key);
        if (event.accepted)
            moveBy(jumps.get(event.key));
    }
    onValueChanged: {
        if (value !== shown)
            moved(Math.max(0, Math.min(1, value)));
    }

    Binding {
        target: root
        property: "value"
        value: root.shown
    }
    Rectangle {
        id: track

        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: root.gradient ? 10 : 4
        radius: height / 2
        color: Qt.alpha(root.colors.textPrimary, 0.16)
        gradient: root.gradient
        border.width: root.gradient ? 1 : 0
        border.color: Qt.alpha(root.colors.textPrimary, 0.16)

        Rectangle {
            width: knob.x + knob.width / 2
            height: parent.height
            radius: parent.radius
            visible: !root.gradient
            color: root.colors.accent
        }
    }
    Rectangle {
        id: knob

        anchors.verticalCenter: parent.verticalCenter
        x: root.shown * (parent.width - width)
        width: 16
        height: 16
        radius: 8
        color: "white"
        border.color: Qt.rgba(0, 0, 0, 0.25)

        FocusRing {
            target: root
            border.color: root.colors.textPrimary
        }
    }
    MouseArea {
        anchors.fill: parent
        preventStealing: true
        onPressed: mouse => root.pointAt(mouse.x)
        onPositionChanged: mouse => root.pointAt(mouse.x)
    }
}
