import QtQuick
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Sensors

// Caffeine alone in the smallest tile, else all four in a row.
Item {
    id: root

    required property WidgetContext context
    required property SwitchPorts switches
    readonly property theme colors: context.theme.shown
    readonly property bool isSmall: context.size === "small"
    readonly property bool isLarge: context.size === "large"

    QuickTogglesStore {
        id: store

        context: root.context
        ports: root.switches
    }

    WidgetTitle {
        id: heading

        visible: root.isLarge
        x: 4
        y: 3
        colors: root.colors
        symbol: "switch.2"
        text: "System Toggles"
    }
    Row {
        id: row

        y: (parent.height - height + (heading.visible ? heading.y + heading.height : 0)) / 2
        width: parent.width

        QuickToggle {
            width: row.width / (root.isSmall ? 1 : 4)
            colors: root.colors
            size: root.context.size
            symbol: "cup.and.saucer.fill"
            label: "Caffeine"
            caption: "Caffeine"
            on: store.caffeineActive
            onClicked: store.toggleCaffeine()
        }
        QuickToggle {
            visible: !root.isSmall
            width: row.width / 4
            colors: root.colors
            size: root.context.size
            symbol: store.darkModeActive ? "moon.fill" : "sun.max"
            label: "Dark Mode"
            caption: "Dark"
            on: store.darkModeActive
            onClicked: store.toggleDarkMode()
        }
        QuickToggle {
            visible: !root.isSmall
            width: row.width / 4
            colors: root.colors
            size: root.context.size
            symbol: store.mutedActive ? "speaker.slash.fill" : "speaker.wave.2"
            label: "Mute"
            caption: "Mute"
            on: store.mutedActive
            onClicked: store.toggleMute()
        }
        QuickToggle {
            visible: !root.isSmall
            width: row.width / 4
            colors: root.colors
            size: root.context.size
            symbol: "trash"
            label: "Empty Trash"
            caption: "Trash"
            stays: false
            onClicked: store.emptyTrash()
        }
    }
}
