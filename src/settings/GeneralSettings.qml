pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Settings
import Brimlight.Theme
import Brimlight.Update

// What is not a matter of looks.
ScrollArea {
    id: root

    required property ThemeStore theme
    required property AppSettings settings
    required property LoginItemService loginItem
    required property UpdateService updater

    colors: theme.shown

    SettingsChoices {
        id: choices

        settings: root.settings
    }

    SettingsCard {
        width: parent.width
        title: qsTr("Startup")
        symbol: "power"
        colors: root.colors

        Toggle {
            width: parent.width
            colors: root.colors
            label: qsTr("Launch Brimlight at login")
            on: root.loginItem.isEnabled
            onClicked: root.loginItem.setEnabled(!on)
        }
    }
    SettingsCard {
        width: parent.width
        title: qsTr("Clock & Units")
        symbol: "clock"
        colors: root.colors

        Toggle {
            width: parent.width
            colors: root.colors
            label: qsTr("Use 24-hour clock format")
            on: root.settings.clock24h
            onClicked: root.settings.clock24h = !on
        }
        Toggle {
            width: parent.width
            colors: root.colors
            label: qsTr("Show seconds in clock")
            on: root.settings.showSeconds
            onClicked: root.settings.showSeconds = !on
        }
        Toggle {
            width: parent.width
            colors: root.colors
            label: qsTr("Use Celsius (°C) for temperature")
            on: root.settings.celsius
            onClicked: root.settings.celsius = !on
        }
    }
    SettingsCard {
        width: parent.width
        title: qsTr("Language")
        symbol: "character.bubble"
        colors: root.colors

        MenuPicker {
            width: parent.width
            label: qsTr("Language")
            options: choices.languages
            current: choices.language
            colors: root.colors
            onChosen: index => choices.chooseLanguage(index)
        }
    }
    SettingsCard {
        width: parent.width
        title: qsTr("Notch Trigger")
        symbol: "cursorarrow.motionlines"
        colors: root.colors

        Hint {
            width: parent.width
            colors: root.colors
            text: qsTr("Requires hovering the mouse over the notch for the selected duration before expanding. Prevents accidental triggers.")
        }
        MenuPicker {
            width: parent.width
            label: qsTr("Hover Delay")
            options: choices.hoverDelays
            current: choices.hoverDelay
            colors: root.colors
            onChosen: index => choices.chooseHoverDelay(index)
        }
    }
    SettingsCard {
        width: parent.width
        title: qsTr("Performance")
        symbol: "gauge"
        colors: root.colors

        Hint {
            width: parent.width
            colors: root.colors
            text: qsTr("Controls update speed of active widgets in the expanded notch. Slower updates conserve your computer's battery.")
        }
        MenuPicker {
            width: parent.width
            label: qsTr("Refresh Interval")
            options: choices.refreshRates
            current: choices.refreshRate
            colors: root.colors
            onChosen: index => choices.chooseRefreshRate(index)
        }
    }
    UpdateCard {
        width: parent.width
        colors: root.colors
        updater: root.updater
        settings: root.settings
    }
}
