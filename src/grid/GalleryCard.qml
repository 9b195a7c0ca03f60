pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
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
    // From 0 at rest to 1 under the pointer.
    property real light: lit ? 1 : 0
    property real pressScale: pressed && !Motion.reduced ? 0.95 : 1
    readonly property real lift: Motion.reduced ? 0 : light

    function between(rest: real, hover: real): real {
        return rest + (hover - rest) * Math.max(0, Math.min(1, light));
    }

    label: entry.name
    // The view around the cards is reached by Tab, a card by arrows.
    activeFocusOnTab: false
    implicitHeight: content.implicitHeight + 14
    scale: 1 + 0.025 * lift
    transform: [
        Scale {
            origin.x: root.width / 2
            origin.y: root.height / 2
            xScale: root.pressScale
            yScale: root.pressScale
        },
        Translate {
            y: -root.lift
        }
    ]
    Accessible.description: entry.sizes

    Behavior on light {
        MotionAnimation {
            movement: Motion.cardHover
        }
    }
    Behavior on pressScale {
        MotionAnimation {
            movement: Motion.press
        }
    }

    DropShadow {
        width: parent.width
        height: parent.height
        y: 2
        visible: opacity > 0
        opacity: root.between(1, 0)
        color: Qt.alpha(root.theme.shown.accent, 0.02)
        corner: 16
        radius: 4
    }
    DropShadow {
        width: parent.width
        height: parent.height
        y: 5
        visible: opacity > 0
        opacity: root.between(0, 1)
        color: Qt.alpha(root.theme.shown.accent, 0.1)
        corner: 16
        radius: 10
    }
    Rectangle {
        anchors.fill: parent
        radius: 16
        color: root.theme.shown.surfaceElevated
    }
    Rectangle {
        anchors.fill: parent
        radius: 16
        border.color: Qt.rgba(1, 1, 1, root.between(0.06, 0.12))
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Qt.rgba(1, 1, 1, root.between(0.045, 0.1))
            }
            GradientStop {
                position: 1
                color: Qt.alpha(root.theme.shown.accent, root.between(0.03, 0.1))
            }
        }
    }

    Column {
        id: content

        x: 7
        y: 7
        width: parent.width - 14
        spacing: 7

        Item {
            id: area

            width: parent.width
            height: 84
            clip: true

            Item {
                anchors.centerIn: parent
                width: root.entry.naturalSize.width
                height: root.entry.naturalSize.height
                scale: Math.min(1, area.width / width, area.height / height)

                GlassTileBackground {
                    anchors.fill: parent
                    theme: root.theme.shown
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
                        color: root.theme.shown.textSecondary
                    }
                }
            }

            Rectangle {
                anchors.right: parent.right
                anchors.top: parent.top
                width: chip.width + 10
                height: chip.height + 4
                radius: height / 2
                color: Qt.rgba(0, 0, 0, 0.28)

                Text {
                    id: chip

                    anchors.centerIn: parent
                    text: root.entry.chip
                    color: root.theme.shown.textPrimary
                    opacity: 0.82
                    font: Fonts.bold(Fonts.footnote)
                }
            }
        }
        Row {
            height: 14
            spacing: 6

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: root.entry.symbol
                size: 10
                weight: Font.DemiBold
                color: root.theme.shown.accent
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: root.entry.name
                color: root.theme.shown.textPrimary
                font: Fonts.strong(Fonts.label)
            }
        }
        Text {
            height: 10
            verticalAlignment: Text.AlignVCenter
            text: root.entry.sizes
            color: root.theme.shown.textSecondary
            font: Fonts.tiny
        }
    }

    FocusRing {
        corner: 16
        gap: 0
        border.color: root.theme.shown.textPrimary
    }
}
