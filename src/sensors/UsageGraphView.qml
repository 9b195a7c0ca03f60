pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Sensors

Item {
    id: root

    required property WidgetContext context
    required property UsageGraphFace face
    readonly property theme colors: context.theme.shown
    readonly property bool isOneRow: context.size === "wide" || context.size === "banner"

    component Legend: Row {
        id: legend

        required property string label
        required property string value
        required property color tint

        spacing: 4
        Accessible.role: Accessible.StaticText
        Accessible.name: label + " " + value

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 6
            height: 6
            radius: 3
            color: legend.tint
        }
        Text {
            text: legend.label
            color: root.colors.textSecondary
            font: Fonts.medium(root.isOneRow ? Fonts.footnote : Fonts.label)
        }
        Text {
            text: legend.value
            color: root.colors.textPrimary
            font: Fonts.strong(root.isOneRow ? Fonts.footnote : Fonts.label)
        }
    }

    Item {
        id: header

        x: 4
        y: root.isOneRow ? 0 : 3
        width: parent.width - 2 * x
        height: root.isOneRow ? 12 : 16

        Legend {
            id: cpu

            anchors.verticalCenter: parent.verticalCenter
            label: "CPU"
            value: root.face.cpuText
            tint: root.colors.accent
        }
        Legend {
            anchors.verticalCenter: parent.verticalCenter
            x: root.context.size === "wide" || root.context.size === "large" ? parent.width - width : cpu.width + 14
            label: "RAM"
            value: root.face.ramText
            tint: root.face.ramColor
        }
    }
    Item {
        id: chart

        readonly property list<int> levels: root.isOneRow ? [0, 100] : [0, 25, 50, 75, 100]

        y: header.y + header.height + (root.isOneRow ? 6 : 10)
        width: parent.width
        height: parent.height - y - 4

        Repeater {
            model: chart.levels

            Item {
                id: line

                required property int modelData

                width: chart.width
                y: chart.height * (1 - modelData / 100)

                Rectangle {
                    width: parent.width - 22
                    height: 1
                    color: root.colors.separator
                }
                Text {
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    text: line.modelData
                    color: root.colors.textSecondary
                    font: Fonts.tiny
                }
            }
        }
        Sparkline {
            width: parent.width - 22
            height: parent.height
            values: root.face.ram
            color: root.face.ramColor
            reduceMotion: Motion.reduced
        }
        Sparkline {
            width: parent.width - 22
            height: parent.height
            values: root.face.cpu
            color: root.colors.accent
            reduceMotion: Motion.reduced
        }
    }
}
