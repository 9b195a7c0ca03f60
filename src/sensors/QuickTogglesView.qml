pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Sensors

// Caffeine alone in the smallest tile, else all four in a row.
Item {
    id: root

    required property WidgetContext context
    required property QuickTogglesStore face
    readonly property theme colors: context.theme.shown
    readonly property bool isSmall: context.size === "small"
    readonly property bool isLarge: context.size === "large"

    TileTitle {
        id: heading

        visible: root.isLarge
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
            on: root.face.caffeineActive
            obstacle: qsTr(root.face.caffeineObstacle)
            onClicked: root.face.toggleCaffeine()
        }
        QuickToggle {
            visible: !root.isSmall
            width: row.width / 4
            colors: root.colors
            size: root.context.size
            symbol: root.face.darkModeActive ? "moon.fill" : "sun.max"
            label: "Dark Mode"
            caption: "Dark"
            on: root.face.darkModeActive
            obstacle: qsTr(root.face.darkModeObstacle)
            onClicked: root.face.toggleDarkMode()
        }
        QuickToggle {
            visible: !root.isSmall
            width: row.width / 4
            colors: root.colors
            size: root.context.size
            symbol: root.face.mutedActive ? "speaker.slash.fill" : "speaker.wave.2"
            label: "Mute"
            caption: "Mute"
            on: root.face.mutedActive
            obstacle: qsTr(root.face.muteObstacle)
            onClicked: root.face.toggleMute()
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
            obstacle: qsTr(root.face.trashObstacle)
            onClicked: root.face.emptyTrash()
        }
    }
}
