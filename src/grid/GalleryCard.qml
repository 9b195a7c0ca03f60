import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid

// One kind of widget in the gallery, with a live preview that is only ever scaled down.
AbstractButton {
    id: root

    required property WidgetCatalog catalog
    required property ThemeStore theme
    required property galleryEntry entry
    required property bool live
    readonly property bool lit: hovered || keyed
    readonly property bool lifted: lit && !Motion.reduced

    label: entry.name
    // The view around the cards is reached by Tab, a card by arrows.
    activeFocusOnTab: false
    scale: pressed && !Motion.reduced ? 0.95 : lifted ? 1.025 : 1
    transform: Translate {
        y: root.lifted ? -1 : 0
    }
    Accessible.description: entry.sizes

    Behavior on scale {
        NumberAnimation {
            duration: Motion.cardHover.duration
            easing: Motion.cardHover.easing
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: 16
        color: root.theme.current.surfaceElevated
        border.width: 1
        border.color: Qt.rgba(1, 1, 1, root.lit ? 0.12 : 0.06)
    }
    Rectangle {
        anchors.fill: parent
        radius: 16
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Qt.rgba(1, 1, 1, root.lit ? 0.1 : 0.045)
            }
            GradientStop {
                position: 1
                color: Qt.alpha(root.theme.current.accent, root.lit ? 0.1 : 0.03)
            }
        }
    }

    Item {
        id: area

        x: 7
        y: 7
        width: parent.width - 14
        height: 84
        clip: true

        Item {
            anchors.centerIn: parent
            width: root.entry.naturalSize.width
            height: root.entry.naturalSize.height
            scale: Math.min(1, area.width / width, area.height / height)

            GlassTileBackground {
                anchors.fill: parent
                theme: root.theme.current
                strength: root.theme.glassStrength
                reduceTransparency: Motion.opaque
            }
            WidgetHost {
                id: preview

                anchors.fill: parent
                anchors.margins: 8
                catalog: root.catalog
                kind: root.entry.kind
                size: root.entry.previewSize
                live: root.live
                enabled: false

                Symbol {
                    anchors.centerIn: parent
                    visible: !preview.hasView
                    name: root.entry.symbol
                    size: 26
                    color: root.theme.current.textSecondary
                }
            }
        }
    }
    Rectangle {
        anchors.right: area.right
        anchors.top: area.top
        width: chip.width + 10
        height: chip.height + 4
        radius: height / 2
        color: Qt.rgba(0, 0, 0, 0.28)

        Text {
            id: chip

            anchors.centerIn: parent
            text: root.entry.chip
            color: root.theme.current.textPrimary
            opacity: 0.82
            font.family: Fonts.rounded
            font.pixelSize: 9
            font.bold: true
        }
    }
    Row {
        x: 9
        y: 98
        spacing: 6

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.entry.symbol
            size: 10
            color: root.theme.current.accent
        }
        Text {
            text: root.entry.name
            color: root.theme.current.textPrimary
            font.family: Fonts.rounded
            font.pixelSize: 11
            font.weight: Font.DemiBold
        }
    }
    Text {
        x: 9
        y: 117
        text: root.entry.sizes
        color: root.theme.current.textSecondary
        font.family: Fonts.rounded
        font.pixelSize: 8
    }

    FocusRing {
        corner: 16
        gap: 0
        border.color: root.theme.current.textPrimary
    }
}
