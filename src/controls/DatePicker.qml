pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// A day and a time of day. It shows what it is given; what the user chooses comes out of `picked`.
Column {
    id: root

    required property date moment
    // Marks today.
    required property date now
    required property theme colors
    property bool clock24h: true
    property bool showsTime: true

    signal picked(date moment)

    spacing: 6
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Date")

    DateDraft {
        id: draft

        moment: root.moment
        now: root.now
        clock24h: root.clock24h
        onPicked: moment => root.picked(moment)
    }
    Item {
        width: parent.width
        height: 20

        Heading {
            anchors.left: parent.left
            anchors.leftMargin: 6
            anchors.right: earlier.left
            anchors.verticalCenter: parent.verticalCenter
            colors: root.colors
            text: draft.title
        }
        IconButton {
            id: earlier

            anchors.right: later.left
            anchors.rightMargin: 4
            symbol: "chevron.left"
            symbolSize: 10
            label: qsTr("Previous month")
            color: root.colors.textPrimary
            disc: Qt.alpha(root.colors.textPrimary, 0.08)
            onClicked: draft.turn(-1)
        }
        IconButton {
            id: later

            anchors.right: parent.right
            symbol: "chevron.right"
            symbolSize: 10
            label: qsTr("Next month")
            color: root.colors.textPrimary
            disc: Qt.alpha(root.colors.textPrimary, 0.08)
            onClicked: draft.turn(1)
        }
    }
    DaySheet {
        width: parent.width
        draft: draft
        colors: root.colors
    }
    Row {
        visible: root.showsTime
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 6

        Stepper {
            label: qsTr("Hour")
            text: draft.hourText
            amount: draft.hour
            from: 0
            to: 23
            wraps: true
            colors: root.colors
            onMoved: to => draft.pickHour(to)
        }
        Stepper {
            label: qsTr("Minute")
            text: draft.minuteText
            amount: draft.minute
            from: 0
            to: 59
            wraps: true
            colors: root.colors
            onMoved: to => draft.pickMinute(to)
        }
    }
}
