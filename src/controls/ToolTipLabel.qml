pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A short text beside a control on which the pointer rests.
Rectangle {
    id: root

    required property string text
    required property bool shown
    required property theme colors
    // Longer texts are broken into lines.
    property real maximumWidth: Infinity

    visible: opacity > 0
    opacity: timer.due && shown ? 1 : 0
    z: 10
    width: label.width + 12
    height: label.height + 6
    radius: 5
    color: Qt.tint(Qt.alpha(colors.surface, 1), Qt.alpha(colors.textPrimary, 0.08))
    border.color: Qt.alpha(colors.textPrimary, 0.14)

    Text {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, root.maximumWidth - 12)
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
        text: root.text
        color: root.colors.textPrimary
        font: Fonts.note
    }
    Timer {
        id: timer

        property bool due: false

        interval: Motion.tipDelay
        running: root.shown
        onTriggered: due = true
        onRunningChanged: {
            if (running)
                due = false;
        }
    }
}
