pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// The mark around the control that keys go to: a line at a distance, so that it shows on any filling, in the colour of
// texts, since the accent means that something is chosen.
Rectangle {
    id: root

    property Item target: parent
    // The corner of what it goes around.
    property real corner: Math.min(parent.width, parent.height) / 2
    property real gap: 1

    anchors.fill: parent
    anchors.margins: -gap - border.width
    z: 1
    visible: target.activeFocus && InputModality.isKeyboard
    radius: corner + gap + border.width
    color: "transparent"
    border.width: 2
}
