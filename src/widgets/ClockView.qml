import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Widgets

Item {
    id: root

    required property WidgetContext context
    readonly property theme colors: context.theme.shown
    readonly property string family: clock.font === "monospaced" ? Fonts.monospaced : clock.font === "serif" ? Fonts.serif : Fonts.rounded

    ClockFace {
        id: clock

        context: root.context
    }

    Column {
        anchors.centerIn: parent
        spacing: 3

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 4

            RollingNumber {
                id: time

                width: Math.min(implicitWidth, root.width - seconds.width - 4)
                text: clock.time
                reduceMotion: Motion.reduced
                font.family: root.family
                font.pixelSize: clock.fontSize
                font.weight: Font.DemiBold
                color: clock.style === "solid" ? root.colors.accent : root.colors.textPrimary
                gradientEnd: clock.style === "gradient" ? root.colors.accent : color
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Column {
                id: seconds

                anchors.bottom: parent.bottom
                anchors.bottomMargin: clock.fontSize * 0.18
                visible: clock.seconds !== "" || clock.meridiem !== ""

                Text {
                    visible: text !== ""
                    text: clock.meridiem
                    color: root.colors.textSecondary
                    font.family: Fonts.rounded
                    font.pixelSize: 11
                    font.weight: Font.DemiBold
                }
                RollingNumber {
                    visible: clock.seconds !== ""
                    text: clock.seconds
                    reduceMotion: Motion.reduced
                    font.family: root.family
                    font.pixelSize: 14
                    font.weight: Font.DemiBold
                    color: root.colors.accent
                }
            }
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            width: Math.min(implicitWidth, root.width)
            elide: Text.ElideRight
            text: clock.date
            color: root.colors.textSecondary
            font.family: Fonts.rounded
            font.pixelSize: 11
            font.weight: Font.Medium
        }
    }
}
