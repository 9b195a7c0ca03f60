pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// The days of one month. It is one stop for Tab; arrows go from day to day.
Grid {
    id: root

    required property DateDraft draft
    required property theme colors
    property real cellHeight: 22
    readonly property real cellWidth: width / 7

    columns: 7
    activeFocusOnTab: true
    Accessible.role: Accessible.Table
    Accessible.name: draft.title
    Accessible.description: Qt.formatDate(draft.moment, Qt.locale().dateFormat(Locale.LongFormat))
    Accessible.focusable: true
    Keys.onLeftPressed: draft.moveDays(-1)
    Keys.onRightPressed: draft.moveDays(1)
    Keys.onUpPressed: draft.moveDays(-7)
    Keys.onDownPressed: draft.moveDays(7)
    Keys.onPressed: event => {
        const months = new Map([[Qt.Key_PageUp, -1], [Qt.Key_PageDown, 1]]);
        event.accepted = months.has(event.key);
        if (event.accepted)
            draft.moveMonths(months.get(event.key));
    }

    Repeater {
        model: root.draft.weekdays

        Text {
            required property string modelData

            width: root.cellWidth
            height: 16
            horizontalAlignment: Text.AlignHCenter
            text: modelData
            color: root.colors.textSecondary
            font: Fonts.medium(Fonts.footnote)
        }
    }
    Repeater {
        model: root.draft.days.length

        AbstractButton {
            id: cell

            required property int index
            readonly property monthDay entry: root.draft.days[index]

            width: root.cellWidth
            height: root.cellHeight
            activeFocusOnTab: false
            label: entry.name
            role: Accessible.Cell
            Accessible.selectable: true
            Accessible.selected: entry.isChosen
            onClicked: root.draft.pickDay(index)

            Rectangle {
                id: disc

                anchors.centerIn: parent
                width: Math.min(parent.width, parent.height)
                height: width
                radius: width / 2
                color: cell.entry.isChosen ? root.colors.accent : cell.hovered ? Qt.alpha(root.colors.textPrimary, 0.1) : "transparent"
                border.width: cell.entry.isToday && !cell.entry.isChosen ? 1 : 0
                border.color: root.colors.accent

                FocusRing {
                    target: cell.entry.isChosen ? root : cell
                    gap: 0
                    border.color: root.colors.textPrimary
                }
            }
            Text {
                anchors.centerIn: parent
                text: cell.entry.day
                color: cell.entry.isChosen ? root.colors.textOnAccent : root.colors.textPrimary
                opacity: cell.entry.isInMonth ? 1 : 0.35
                font: cell.entry.isToday ? Fonts.bold(Fonts.note) : Fonts.note
            }
        }
    }
}
