pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Settings
import Brimlight.Theme

// How the program looks.
ScrollArea {
    id: root

    required property ThemeStore theme

    colors: theme.shown

    ThemeChoices {
        id: choices

        theme: root.theme
    }

    SettingsCard {
        width: parent.width
        title: qsTr("Liquid Glass")
        symbol: "drop.fill"
        colors: root.colors

        GlassPreview {
            width: parent.width
            theme: root.theme
        }
        Item {
            width: parent.width
            height: 20

            Text {
                id: strengthLabel

                anchors.bottom: parent.bottom
                text: qsTr("Transparency & Tint")
                color: root.colors.textPrimary
                font: Fonts.body
            }
            Text {
                anchors.right: parent.right
                anchors.baseline: strengthLabel.baseline
                text: choices.strengthText
                color: root.colors.textSecondary
                font: Fonts.label
            }
        }
        Slider {
            width: parent.width
            label: strengthLabel.text
            colors: root.colors
            position: root.theme.glassStrength
            onMoved: to => root.theme.glassStrength = to
        }
    }
    SettingsCard {
        width: parent.width
        title: qsTr("Theme Presets")
        symbol: "paintpalette.fill"
        colors: root.colors

        SwatchGrid {
            width: parent.width
            label: qsTr("Theme Presets")
            theme: root.theme
            marked: choices.marked
            onChosen: id => root.theme.fadeToPalette(id, Motion.selection)
        }
        Item {
            width: parent.width
            height: 28

            TextButton {
                anchors.bottom: parent.bottom
                height: 24
                colors: root.colors
                text: qsTr("Reset to Default Preset")
                onClicked: root.theme.reset()
            }
        }
    }
    SettingsCard {
        id: wells

        // The one that is open; -1 for none.
        property int open: -1

        width: parent.width
        title: qsTr("Custom Colors")
        symbol: "slider.horizontal.3"
        colors: root.colors

        Repeater {
            model: choices.colorLabels

            ColorWell {
                required property int index
                required property string modelData

                width: parent.width
                label: qsTr(modelData)
                text: choices.colorTexts[index]
                color: choices.colors[index]
                colors: root.colors
                open: wells.open === index
                onToggled: wells.open = open ? -1 : index
                onPicked: color => choices.setColor(index, color)
            }
        }
    }
}
