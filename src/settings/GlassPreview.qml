pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// The panel in small, with a tile, in front of something that can shine through.
Rectangle {
    id: root

    required property ThemeStore theme
    readonly property theme colors: theme.shown

    implicitHeight: 116
    radius: 10
    gradient: Gradient {
        orientation: Gradient.Horizontal

        GradientStop {
            position: 0
            color: "#3A6EA5"
        }
        GradientStop {
            position: 0.5
            color: "#9B6FB0"
        }
        GradientStop {
            position: 1
            color: "#E8A07C"
        }
    }
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Live theme preview")

    GlassSurface {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 260
        height: 94
        theme: root.colors
        strength: root.theme.glassStrength
        tinted: true
        border: true
        bottomRadius: 20
        reduceTransparency: Motion.opaque
        backdrop: GlassSurface.Blurred

        GlassTileBackground {
            anchors.centerIn: parent
            width: 120
            height: 66
            radius: 18
            theme: root.colors
            strength: root.theme.glassStrength
            reduceTransparency: Motion.opaque

            Text {
                anchors.centerIn: parent
                text: "09:41"
                color: root.colors.textPrimary
                font: Fonts.bold(Fonts.display)
            }
        }
    }
}
