pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid

// A round switch with its name below: filled with the accent while it is on, dimmed where it does not work.
AbstractButton {
    id: root

    required property theme colors
    // That of the tile.
    required property string size
    required property string symbol
    // The name in short.
    required property string caption
    // Whether it stays pressed: a button does not.
    property bool stays: true
    property bool on: false
    // Why it does not work; empty when it does.
    property string obstacle
    readonly property bool works: obstacle === ""
    readonly property bool lit: hovered || keyed

    height: disc.height + 3 + name.height
    role: stays ? Accessible.CheckBox : Accessible.Button
    Accessible.checkable: stays
    Accessible.checked: on
    Accessible.description: obstacle
    Accessible.onToggleAction: clicked()

    Rectangle {
        id: disc

        anchors.horizontalCenter: parent.horizontalCenter
        width: root.size === "small" ? 34 : root.size === "large" ? 32 : 28
        height: width
        radius: width / 2
        color: root.on ? Qt.alpha(root.colors.accent, root.works ? 1 : 0.35) : Qt.alpha(root.colors.textPrimary, root.lit && root.works ? 0.18 : 0.09)
        scale: root.pressed && root.works && !Motion.reduced ? 0.94 : 1

        Behavior on color {
            MotionAnimation {
                movement: Motion.headerHover
            }
        }

        FocusRing {
            target: root
            border.color: root.colors.textPrimary
        }
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: disc.width * 0.42
            color: root.on ? root.colors.textOnAccent : root.colors.textPrimary
            opacity: root.works ? 1 : 0.35
        }
    }
    Text {
        id: name

        anchors.top: disc.bottom
        anchors.topMargin: 3
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.caption
        color: root.on ? root.colors.textPrimary : root.colors.textSecondary
        opacity: root.works ? 1 : 0.5
        elide: Text.ElideRight
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Fonts.tiny.pixelSize
        font: Fonts.medium(root.size === "small" ? Fonts.note : Fonts.footnote)
    }
    ToolTipLabel {
        // Within the row where that is wide enough.
        readonly property real centred: (root.width - width) / 2

        x: root.size === "small" ? centred : Math.max(-root.x, Math.min(centred, root.parent.width - root.x - width))
        anchors.bottom: disc.top
        anchors.bottomMargin: 3
        // At the edge of the panel there is no room for more.
        maximumWidth: root.size === "small" ? 104 : 136
        text: root.obstacle
        shown: root.lit && !root.works
        colors: root.colors
    }
}
