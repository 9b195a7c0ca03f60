pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A bar between its label and its percentage, both of which may be left out. Where that leaves little of it, it stands
// below them.
Item {
    id: root

    // For screen readers; shown when it has a width.
    required property string label
    required property real fraction
    required property string text
    required property theme colors
    property real labelWidth: 32
    property real textWidth: 26
    property real thickness: 5
    property bool stacked: false
    property color tint: colors.accent
    property font font: Fonts.footnote
    readonly property real textHeight: Math.max(labelWidth > 0 ? caption.height : 0, textWidth > 0 ? percent.height : 0)

    implicitHeight: stacked ? textHeight + 2 + thickness : Math.max(thickness, textHeight)
    Accessible.role: Accessible.ProgressBar
    Accessible.name: label + " " + text

    Text {
        id: caption

        y: root.stacked ? 0 : (parent.height - height) / 2
        width: root.stacked ? percent.x : root.labelWidth
        visible: root.labelWidth > 0
        elide: Text.ElideRight
        text: root.label
        color: root.colors.textSecondary
        font: root.font
    }
    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: !root.stacked && root.labelWidth > 0 ? root.labelWidth + 4 : 0
        anchors.right: parent.right
        anchors.rightMargin: !root.stacked && root.textWidth > 0 ? root.textWidth + 4 : 0
        y: root.stacked ? parent.height - height : (parent.height - height) / 2
        height: root.thickness
        radius: height / 2
        color: Qt.alpha(root.tint, 0.18)

        Rectangle {
            width: Math.max(height, parent.width * Math.min(1, root.fraction))
            height: parent.height
            radius: parent.radius
            visible: root.fraction > 0
            color: root.tint
        }
    }
    Text {
        id: percent

        x: parent.width - width
        y: caption.visible ? caption.y : (parent.height - height) / 2
        width: root.textWidth
        visible: width > 0
        horizontalAlignment: Text.AlignRight
        text: root.text
        color: root.colors.textPrimary
        font: root.font
    }
}
