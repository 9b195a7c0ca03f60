pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Sensors
import Brimlight.Notch

// The row at the top of the open panel: title and pages on the left, buttons on the right.
Item {
    id: root

    required property NotchScene scene
    required property NotchController controller
    readonly property NotchViewModel viewModel: scene.viewModel
    readonly property SystemStatusMonitor status: scene.statusMonitor
    readonly property theme colors: scene.theme.shown
    readonly property alias galleryButton: add
    readonly property alias settingsButton: gear

    signal galleryRequested
    // By a key on one of the controls.
    signal menuRequested(Item opener)

    height: 24
    Keys.onPressed: event => {
        const shiftF10 = event.key === Qt.Key_F10 && (event.modifiers & Qt.ShiftModifier);
        event.accepted = event.key === Qt.Key_Menu || shiftF10;
        if (event.accepted)
            menuRequested(Window.activeFocusItem);
    }

    Row {
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 12

        Row {
            anchors.verticalCenter: parent.verticalCenter
            spacing: 6

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 6
                height: 6
                radius: 3
                color: root.colors.accent
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: root.viewModel.showSettings ? qsTr("Settings") : qsTr("Brimlight")
                color: root.colors.textPrimary
                font: Fonts.bold(Fonts.body)
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.status.isDND
                name: "moon.fill"
                size: 10
                weight: Font.DemiBold
                color: root.colors.accent
                Accessible.role: Accessible.Indicator
                Accessible.name: qsTr("Do Not Disturb")
            }
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.status.isMuted
                name: "mic.slash.fill"
                size: 10
                weight: Font.DemiBold
                color: root.status.mutedColor
                Accessible.role: Accessible.Indicator
                Accessible.name: qsTr("Microphone muted")
            }
        }

        Row {
            id: pages

            anchors.verticalCenter: parent.verticalCenter
            spacing: 5
            visible: !root.viewModel.showSettings

            Repeater {
                model: root.scene.pageControls.shown

                AbstractButton {
                    id: capsule

                    required property int index
                    readonly property int page: root.scene.pageControls.first + index
                    readonly property bool current: page === root.viewModel.currentPage

                    width: bar.width
                    height: 16
                    label: qsTr("Page") + " " + (page + 1)
                    role: Accessible.PageTab
                    Accessible.selectable: true
                    Accessible.selected: current
                    onClicked: root.viewModel.currentPage = page

                    Rectangle {
                        id: bar

                        anchors.verticalCenter: parent.verticalCenter
                        width: capsule.current ? 16 : 6
                        height: 6
                        radius: 3
                        color: capsule.current ? root.colors.accent : Qt.alpha(root.colors.textPrimary, 0.35)

                        Behavior on width {
                            MotionAnimation {
                                movement: Motion.dots
                            }
                        }
                        Behavior on color {
                            MotionAnimation {
                                movement: Motion.dots
                            }
                        }

                        FocusRing {
                            target: capsule
                            border.color: root.colors.textPrimary
                        }
                    }
                }
            }
            IconButton {
                id: addPage

                anchors.verticalCenter: parent.verticalCenter
                width: 16
                height: 16
                symbol: "plus.circle.fill"
                symbolSize: 12
                label: qsTr("Add page")
                color: root.colors.textSecondary
                onClicked: root.scene.pageControls.addPage()

                ToolTipLabel {
                    text: addPage.label
                    shown: addPage.hovered || addPage.keyed
                    colors: root.colors
                    anchors.top: parent.bottom
                    anchors.topMargin: 5
                }
            }
        }
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: 20
        spacing: 8

        NotchHeaderButton {
            id: add

            visible: !root.viewModel.showSettings
            colors: root.colors
            systemImage: "plus"
            help: qsTr("Add widget")
            onClicked: root.galleryRequested()
        }
        NotchHeaderButton {
            visible: !root.viewModel.showSettings
            colors: root.colors
            systemImage: root.viewModel.isPinned ? "pin.fill" : "pin"
            help: qsTr("Keep open")
            tinted: root.viewModel.isPinned
            onClicked: root.controller.togglePin()
        }
        NotchHeaderButton {
            id: gear

            visible: !root.viewModel.showSettings
            colors: root.colors
            systemImage: "gearshape"
            help: qsTr("Settings")
            onClicked: root.controller.openSettings()
        }
        NotchHeaderButton {
            visible: root.viewModel.showSettings
            colors: root.colors
            systemImage: "chevron.left"
            help: qsTr("Back")
            tinted: true
            onClicked: root.viewModel.showSettings = false
        }
    }
}
