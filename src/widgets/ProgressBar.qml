pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A label, a bar and a percentage.
Item {
    id: root

    required property string label
    required property real fraction
    required property string text
    required property theme colors

    implicitHeight: caption.height
    Accessible.role: Accessible.ProgressBar
    Accessible.name: label + " " + text

    Text {
        id: caption

        width: 32
        text: root.label
        color: root.colors.textSecondary
        font.family: Fonts.rounded
        font.pixelSize: 9
    }
    Rectangle {
        anchors.left: caption.right
        anchors.right: percent.left
        anchors.margins: 4
        anchors.verticalCenter: parent.verticalCenter
        height: 5
        radius: 2.5
        color: Qt.alpha(root.colors.accent, 0.18)

        Rectangle {
            width: Math.max(height, parent.width * root.fraction)
            height: parent.height
            radius: parent.radius
            color: root.colors.accent
        }
    }
    Text {
        id: percent

        anchors.right: parent.right
        width: 24
        horizontalAlignment: Text.AlignRight
        text: root.text
        color: root.colors.textPrimary
        font.family: Fonts.rounded
        font.pixelSize: 9
    }
}
