pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Notch

// The root of the view tree: fills the surface and draws the pane where the panel says. Menus stand above the pane and
// may reach beyond it.
Item {
    id: root

    required property NotchScene scene
    required property NotchController controller
    readonly property NotchPanel panel: scene.panel
    readonly property theme colors: scene.theme.shown

    // Who uses keys goes on from what had opened a menu.
    function focusAfter(opener: Item): void {
        (opener && InputModality.isKeyboard ? opener : content).forceActiveFocus(Qt.TabFocusReason);
    }

    Item {
        id: pane

        x: root.panel.pane.x
        y: root.panel.pane.y
        width: root.panel.pane.width
        height: root.panel.pane.height
        visible: root.panel.isDrawn

        GlassSurface {
            anchors.fill: parent
            // Where nothing can shine through there is nothing to fade into.
            opacity: root.scene.viewModel.isExpanded || backdrop === GlassSurface.Opaque ? 1 : 0
            theme: root.colors
            strength: root.scene.theme.glassStrength
            tinted: true
            border: true
            bottomRadius: 32
            reduceTransparency: Motion.opaque
            backdrop: root.panel.backdrop

            Behavior on opacity {
                MotionAnimation {
                    movement: Motion.panel
                }
            }
        }

        // The bare surface, below everything that takes taps of its own.
        Item {
            anchors.fill: parent

            Tap {
                onTapped: root.controller.tap()
            }
        }

        Item {
            anchors.fill: parent
            clip: true

            LazyItem {
                id: content

                property bool wanted: false

                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.max(536, root.scene.viewModel.collapsedWidth)
                height: root.panel.openHeight
                active: wanted
                focus: true

                // Made when first shown, then kept.
                Connections {
                    target: root.panel

                    function onIsDrawnChanged() {
                        content.wanted = true;
                    }
                }

                sourceComponent: NotchContent {
                    scene: root.scene
                    controller: root.controller
                    focus: true
                    onStatusMenuRequested: (opener, position) => statusMenu.openAt(mapToItem(root, position), opener)
                    onMenuRequested: (tile, instanceId, kind, position) => menu.openFor(tile, instanceId, kind, mapToItem(root, position))
                }
            }
        }
    }

    DropArea {
        anchors.fill: pane
        keys: ["text/uri-list"]
        onEntered: drag => drag.accepted = root.controller.takesDrop(drag.urls)
        onDropped: drop => {
            drop.accept(Qt.CopyAction);
            root.controller.filesDropped(drop.urls);
        }

        NotchOutline {
            anchors.fill: parent
            visible: parent.containsDrag
            color: root.colors.accent
            opacity: 0.9
        }
    }

    // Made when first shown, then kept.
    LazyItem {
        id: hud

        active: false
        visible: !root.scene.viewModel.isExpanded

        Connections {
            target: root.scene.hud

            function onChanged() {
                hud.active = hud.active || root.scene.hud.isShown;
            }
        }

        sourceComponent: NotchHUDView {
            face: root.scene.hud
            colors: root.colors
            place: root.panel.hudPlace
            onSeenChanged: root.panel.showHud(seen)
        }
    }

    // Popovers of tiles; those of the settings have a layer of their own. They go with the panel.
    PopoverLayer {
        anchors.fill: parent
        active: root.scene.viewModel.isExpanded
        rest: content
        onPlaced: (popover, frame) => root.panel.showPopover(popover, frame)
    }

    TileMenu {
        id: menu

        anchors.fill: parent
        catalog: root.scene.catalog
        viewState: root.scene.viewModel
        theme: root.scene.theme
        onMenuRectChanged: root.panel.showPopover(menu, menuRect)
        onSizesRectChanged: root.panel.showPopover(sizes, sizesRect)
        onClosed: root.focusAfter(opener)

        QtObject {
            id: sizes
        }
    }
    StatusMenu {
        id: statusMenu

        anchors.fill: parent
        entries: root.scene.statusMenu
        viewState: root.scene.viewModel
        theme: root.scene.theme
        onMenuRectChanged: root.panel.showPopover(statusMenu, menuRect)
        onClosed: root.focusAfter(opener)

        Connections {
            target: root.controller

            function onStatusMenuRequested(place) {
                InputModality.pointed();
                statusMenu.openAt(place, null);
            }
        }
    }
}
