pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Widgets

Item {
    id: root

    required property WidgetContext context
    required property ClockFace face
    readonly property theme colors: context.theme.shown

    Column {
        anchors.centerIn: parent
        spacing: 3

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 4

            RollingNumber {
                id: time

                width: Math.min(implicitWidth, root.width - seconds.width - 4)
                text: root.face.time
                reduceMotion: Motion.reduced
                font: Fonts.designed(Fonts.sized(Fonts.strong(Fonts.display), root.face.fontSize), root.face.font)
                color: root.face.style === "solid" ? root.colors.accent : root.colors.textPrimary
                gradientEnd: root.face.style === "gradient" ? root.colors.accent : color
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Column {
                id: seconds

                anchors.bottom: parent.bottom
                anchors.bottomMargin: root.face.fontSize * 0.18
                visible: root.face.seconds !== "" || root.face.meridiem !== ""

                Text {
                    visible: text !== ""
                    text: root.face.meridiem
                    color: root.colors.textSecondary
                    font: Fonts.strong(Fonts.label)
                }
                RollingNumber {
                    visible: root.face.seconds !== ""
                    text: root.face.seconds
                    reduceMotion: Motion.reduced
                    font: Fonts.strong(Fonts.designed(Fonts.value, root.face.font))
                    color: root.colors.accent
                }
            }
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            width: Math.min(implicitWidth, root.width)
            elide: Text.ElideRight
            text: root.face.date
            color: root.colors.textSecondary
            font: Fonts.medium(Fonts.label)
        }
    }
}
