pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Widgets

Item {
    id: root

    required property WidgetContext context
    required property CalendarFace face
    readonly property theme colors: context.theme.shown
    readonly property real cellWidth: (width - 6 * 2) / 7
    readonly property int rows: Math.ceil(root.face.cells.length / 7)
    readonly property real headerHeight: title.visible ? title.y + title.height + 3 : 0
    readonly property real cellHeight: root.face.showsWeek ? 26 : Math.min(26, (height - headerHeight - 15 - rows * 2) / Math.max(rows, 1))

    Text {
        id: title

        x: 4
        y: 3
        visible: !root.face.showsWeek && root.context.size === "huge"
        text: root.face.title
        color: root.colors.textPrimary
        font: Fonts.bold(Fonts.subtitle)
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Grid {
        y: root.face.showsWeek ? (root.height - height) / 2 : root.headerHeight
        columns: 7
        columnSpacing: 2
        rowSpacing: root.face.showsWeek ? 3 : 2

        Repeater {
            model: root.face.weekdays

            Text {
                required property string modelData

                width: root.cellWidth
                height: 13
                horizontalAlignment: Text.AlignHCenter
                text: modelData
                color: root.colors.textSecondary
                font: Fonts.medium(root.face.showsWeek ? Fonts.note : Fonts.label)
            }
        }
        Repeater {
            model: root.face.cells

            Item {
                id: cell

                required property var modelData

                width: root.cellWidth
                height: root.cellHeight
                Accessible.role: Accessible.StaticText
                Accessible.name: modelData.day
                Accessible.description: modelData.isToday ? "Today" : ""
                Accessible.ignored: modelData.day === 0

                Rectangle {
                    anchors.centerIn: parent
                    width: Math.min(parent.width, parent.height, 22)
                    height: width
                    radius: width / 2
                    visible: cell.modelData.isToday
                    color: root.colors.accent
                }
                Text {
                    anchors.centerIn: parent
                    visible: cell.modelData.day > 0
                    text: cell.modelData.day
                    color: cell.modelData.isToday ? root.colors.textOnAccent : root.colors.textPrimary
                    font: cell.modelData.isToday ? Fonts.bold(Fonts.note) : Fonts.note
                }
            }
        }
    }
}
