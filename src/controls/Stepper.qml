pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A number between a minus and a plus, and perhaps a label in front. It is one stop for Tab; up and down change it.
Item {
    id: root

    required property string label
    required property real amount
    required property real from
    required property real to
    required property theme colors
    property real step: 1
    // Beyond an end it goes on from the other.
    property bool wraps: false
    // How the number is written.
    property string text: amount
    property bool showsLabel: false
    property bool available: true
    readonly property bool keyed: activeFocus && InputModality.isKeyboard

    // For screen readers, which may also set it.
    property real value: 0
    readonly property real minimumValue: from
    readonly property real maximumValue: to
    readonly property real stepSize: step

    signal moved(real to)

    function moveTo(wanted: real): void {
        const past = wraps && wanted > to ? from : wraps && wanted < from ? to : wanted;
        const next = Math.max(from, Math.min(to, past));
        if (next !== amount)
            moved(next);
    }

    implicitWidth: (showsLabel ? caption.implicitWidth + 10 : 0) + frame.implicitWidth
    implicitHeight: 24
    enabled: available
    opacity: available ? 1 : 0.4
    activeFocusOnTab: true
    Accessible.role: Accessible.SpinBox
    Accessible.name: label
    Accessible.description: text
    Accessible.focusable: true
    Accessible.onIncreaseAction: moveTo(amount + step)
    Accessible.onDecreaseAction: moveTo(amount - step)
    Keys.onUpPressed: moveTo(amount + step)
    Keys.onRightPressed: moveTo(amount + step)
    Keys.onDownPressed: moveTo(amount - step)
    Keys.onLeftPressed: moveTo(amount - step)
    Keys.onPressed: event => {
        const goals = new Map([[Qt.Key_Home, from], [Qt.Key_End, to], [Qt.Key_Plus, amount + step], [Qt.Key_Minus, amount - step]]);
        event.accepted = goals.has(event.key);
        if (event.accepted)
            moveTo(goals.get(event.key));
    }
    onValueChanged: {
        if (value !== amount)
            moveTo(value);
    }

    Binding {
        target: root
        property: "value"
        value: root.amount
    }
    component End: IconButton {
        required property real by

        width: 20
        height: 20
        symbolSize: 9
        weight: Font.Bold
        // The number itself is what Tab and screen readers reach.
        activeFocusOnTab: false
        Accessible.ignored: true
    }
    Text {
        id: caption

        anchors.left: parent.left
        anchors.right: frame.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        visible: root.showsLabel
        elide: Text.ElideRight
        text: root.label
        color: root.colors.textPrimary
        font: Fonts.label
    }
    Rectangle {
        id: frame

        implicitWidth: Math.max(24, number.implicitWidth + 8) + 44
        anchors.right: parent.right
        width: root.showsLabel ? implicitWidth : parent.width
        height: parent.height
        radius: 7
        color: Qt.alpha(root.colors.textPrimary, 0.08)

        End {
            anchors.left: parent.left
            anchors.leftMargin: 2
            anchors.verticalCenter: parent.verticalCenter
            symbol: "minus"
            by: -root.step
            color: root.colors.textPrimary
            disc: Qt.alpha(root.colors.textPrimary, hovered ? 0.12 : 0)
            available: root.wraps || root.amount > root.from
            onClicked: root.moveTo(root.amount + by)
        }
        Text {
            id: number

            anchors.centerIn: parent
            text: root.text
            color: root.colors.textPrimary
            font: Fonts.medium(Fonts.label)
        }
        End {
            anchors.right: parent.right
            anchors.rightMargin: 2
            anchors.verticalCenter: parent.verticalCenter
            symbol: "plus"
            by: root.step
            color: root.colors.textPrimary
            disc: Qt.alpha(root.colors.textPrimary, hovered ? 0.12 : 0)
            available: root.wraps || root.amount < root.to
            onClicked: root.moveTo(root.amount + by)
        }
        FocusRing {
            target: root
            corner: 7
            border.color: root.colors.textPrimary
        }
    }
}
