pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// Every control, as it is, as it is chosen and as it is dimmed.
Rectangle {
    id: root

    required property theme colors
    property string font: "mono"
    property int delay: 1
    property date moment: new Date(2026, 2, 10, 9, 30)

    function open(): void {
        editor.open = true;
    }

    color: Qt.alpha(colors.surface, 1)

    Row {
        x: 16
        y: 16
        spacing: 24

        Column {
            width: 200
            spacing: 10

            Heading {
                colors: root.colors
                text: "Heading"
            }
            Label {
                colors: root.colors
                text: "Label"
            }
            Caption {
                width: 90
                colors: root.colors
                text: "A caption that gives way"
            }
            Hint {
                width: parent.width
                colors: root.colors
                text: "A hint of a few quiet lines that explain what the control below it is good for."
            }
            WidgetTitle {
                colors: root.colors
                symbol: "network"
                text: "Network"
            }
            Row {
                spacing: 8

                TextButton {
                    colors: root.colors
                    text: "Save"
                    prominent: true
                }
                TextButton {
                    colors: root.colors
                    text: "Cancel"
                }
                TextButton {
                    colors: root.colors
                    text: "No"
                    available: false
                }
            }
            Row {
                spacing: 8

                TextButton {
                    colors: root.colors
                    text: "5m"
                    compact: true
                }
                TextButton {
                    colors: root.colors
                    text: "15m"
                    compact: true
                    prominent: true
                }
                IconButton {
                    symbol: "plus"
                    label: "Add"
                    color: root.colors.textPrimary
                    disc: Qt.alpha(root.colors.textPrimary, 0.1)
                }
                IconButton {
                    symbol: "xmark"
                    label: "Close"
                    color: root.colors.textSecondary
                }
                Spinner {
                    color: root.colors.accent
                }
                Spinner {
                    width: 22
                    height: 22
                    color: root.colors.textPrimary
                }
            }
            CheckBox {
                colors: root.colors
                label: "Checked"
                checked: true
            }
            CheckBox {
                colors: root.colors
                label: "Not checked"
                checked: false
            }
            Toggle {
                width: parent.width
                colors: root.colors
                label: "Symbols"
                on: true
            }
            Toggle {
                width: parent.width
                colors: root.colors
                label: "Not available"
                on: false
                available: false
            }
            Slider {
                width: parent.width
                label: "Strength"
                colors: root.colors
                position: 0.4
            }
            SegmentedPicker {
                width: parent.width
                colors: root.colors
                label: "Font:"
                labels: ["Rounded", "Mono", "Serif"]
                values: ["rounded", "mono", "serif"]
                value: root.font
                onChosen: value => root.font = value
            }
            ProgressBar {
                width: parent.width
                colors: root.colors
                label: "Week"
                fraction: 0.4
                text: "40%"
            }
        }
        Column {
            width: 200
            spacing: 10

            TextField {
                width: parent.width
                label: "Empty"
                placeholder: "Search city…"
                colors: root.colors
            }
            TextField {
                id: field

                width: parent.width
                label: "Full"
                text: "AAPL MSFT NVDA"
                colors: root.colors
                Component.onCompleted: {
                    selectAll();
                    forceActiveFocus();
                }
            }
            TextField {
                width: parent.width
                label: "Dimmed"
                text: "owner/repo"
                colors: root.colors
                available: false
            }
            TextEditor {
                width: parent.width
                height: 70
                label: "Note"
                colors: root.colors
                text: "A note of several lines, longer than its place, so that the mark at its edge shows how far it has been scrolled, and the rest can be reached."
            }
            Stepper {
                width: parent.width
                label: "Length"
                amount: 18
                from: 6
                to: 32
                step: 2
                showsLabel: true
                colors: root.colors
            }
            Stepper {
                width: 100
                label: "At its end"
                amount: 4
                from: 1
                to: 4
                colors: root.colors
            }
            MenuPicker {
                width: parent.width
                label: "Delay"
                options: ["None", "Short", "Long"]
                current: root.delay
                colors: root.colors
                onChosen: index => root.delay = index
            }
            ListRow {
                width: parent.width
                colors: root.colors
                text: "Deep work before noon"
                checkable: true
                framed: true

                IconButton {
                    width: 16
                    height: 16
                    symbol: "xmark"
                    symbolSize: 8
                    label: "Remove"
                    color: root.colors.textSecondary
                }
            }
            ListRow {
                width: parent.width
                colors: root.colors
                text: "Plan the day"
                checkable: true
                checked: true
                framed: true
            }
            ListRow {
                width: parent.width
                colors: root.colors
                text: "Some file with a long name.pdf"
                detail: "4 MB"
                symbol: "internaldrive"
                clickable: true
            }
            Item {
                width: parent.width
                height: 20

                TileTitle {
                    colors: root.colors
                    symbol: "network"
                    text: "Tile"
                }
            }
            Row {
                spacing: 12

                MeterRing {
                    width: 58
                    height: 58
                    colors: root.colors
                    value: 0.42
                    text: "42%"
                }
                MeterRing {
                    width: 58
                    height: 58
                    colors: root.colors
                    value: 0.7
                    text: "70%"
                    caption: "RAM"
                }
            }
        }
        DatePicker {
            width: 200
            moment: root.moment
            now: new Date(2026, 2, 12)
            colors: root.colors
            onPicked: moment => root.moment = moment
        }
        Column {
            width: 168
            spacing: 10

            MenuPanel {
                width: parent.width
                height: implicitHeight
                colors: root.colors

                MenuEntry {
                    width: parent.width
                    colors: root.colors
                    text: "Size"
                    opensSubmenu: true
                    submenuOpen: true
                }
                MenuEntry {
                    width: parent.width
                    colors: root.colors
                    text: "Small"
                    checkable: true
                    checked: true
                }
                MenuEntry {
                    width: parent.width
                    colors: root.colors
                    text: "High"
                    symbol: "circle.fill"
                    symbolColor: root.colors.critical
                }
                MenuEntry {
                    width: parent.width
                    colors: root.colors
                    text: "Not now"
                    available: false
                }
                MenuEntry {
                    width: parent.width
                    colors: root.colors
                    text: "Remove"
                    destructive: true
                }
            }
            TextButton {
                id: opener

                colors: root.colors
                text: "Popover"
            }
        }
    }
    Popover {
        id: editor

        anchorItem: opener
        label: "Editor"
        colors: root.colors

        Label {
            colors: root.colors
            font: Fonts.note
            text: "Symbols (space-separated)"
        }
        TextField {
            width: parent.width
            label: "Symbols"
            placeholder: "AAPL MSFT NVDA"
            colors: root.colors
        }
        TextButton {
            anchors.right: parent.right
            colors: root.colors
            text: "Save"
            prominent: true
        }
    }
    PopoverLayer {
        anchors.fill: parent
    }
}
