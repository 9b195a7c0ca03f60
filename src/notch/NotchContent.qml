pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Settings
import Brimlight.Notch

// What the open panel shows: the walk-through, the settings or the grid, and the header above.
Item {
    id: root

    required property NotchScene scene
    required property NotchController controller
    readonly property NotchViewModel viewModel: scene.viewModel
    readonly property theme colors: scene.theme.shown
    readonly property bool shown: viewModel.isExpanded
    readonly property real topInset: viewModel.collapsedHeight + 8
    property bool galleryOpen: false
    // The first movement needs something to start from.
    property bool isMade: false
    // From 0, the walk-through, to 1, header and grid.
    property real arrival: viewModel.onboardingCompleted ? 1 : 0

    signal statusMenuRequested(Item opener, point position)
    signal menuRequested(Item tile, string instanceId, string kind, point position)

    function openGallery(): void {
        controller.openGallery();
        galleryOpen = true;
        gallery.takeFocus();
    }
    function closeGallery(): void {
        controller.closeGallery();
        galleryOpen = false;
        focusAfter(header.galleryButton);
    }
    // Where the focus goes when something closes: who uses keys goes on from there, and otherwise nothing keeps the
    // keyboard.
    function focusAfter(next: Item): void {
        (InputModality.isKeyboard ? next : root).forceActiveFocus(Qt.TabFocusReason);
    }

    opacity: 0
    scale: 0.95
    transformOrigin: Item.Top
    Component.onCompleted: isMade = true
    Keys.onEscapePressed: {
        if (scene.gridDrag.isActive)
            scene.gridDrag.cancel();
        else if (galleryOpen)
            closeGallery();
        else if (viewModel.flippedWidget !== "")
            viewModel.clearFlip();
        else if (viewModel.showSettings)
            viewModel.showSettings = false;
        else
            controller.requestClose();
    }

    onShownChanged: {
        if (!shown)
            root.forceActiveFocus();
    }

    Connections {
        target: root.viewModel

        function onFlippedWidgetIDChanged() {
            if (root.viewModel.flippedWidget === "" && !InputModality.isKeyboard)
                root.forceActiveFocus();
        }
        function onShowSettingsChanged() {
            settings.takesFocus = root.viewModel.showSettings && root.shown;
            settings.giveFocus();
            if (!root.viewModel.showSettings)
                root.focusAfter(header.settingsButton);
        }
        function onOnboardingCompletedChanged() {
            root.focusAfter(header.galleryButton);
        }
    }

    states: State {
        name: "shown"
        when: root.isMade && root.shown

        PropertyChanges {
            root.opacity: 1
            root.scale: 1
        }
    }
    transitions: [
        Transition {
            to: "shown"

            MotionAnimation {
                properties: "opacity,scale"
                movement: Motion.panel
            }
        },
        Transition {
            to: ""

            SequentialAnimation {
                MotionAnimation {
                    property: "opacity"
                    movement: Motion.panel
                }
                PropertyAction {
                    property: "scale"
                }
            }
        }
    ]

    Behavior on arrival {
        MotionAnimation {
            movement: Motion.change
        }
    }

    LazyItem {
        anchors.fill: parent
        anchors.topMargin: root.topInset
        active: opacity > 0
        enabled: !root.viewModel.onboardingCompleted
        opacity: 1 - root.arrival
        sourceComponent: NotchOnboarding {
            scene: root.scene
            controller: root.controller
        }
    }

    // The header and the edge of the screen above it, whatever is shown below.
    Item {
        width: parent.width
        height: root.topInset

        Tap {
            acceptedButtons: Qt.RightButton
            onTapped: point => root.statusMenuRequested(null, parent.mapToItem(root, point.position))
        }
    }
    // Before the tiles, since Tab goes by this order; above them, since its tool tips reach down.
    NotchHeader {
        id: header

        z: 1
        anchors.left: parent.left
        anchors.right: parent.right
        y: Math.max(4, (root.viewModel.collapsedHeight - height) / 2)
        visible: root.viewModel.onboardingCompleted
        opacity: root.arrival
        enabled: !root.galleryOpen
        scene: root.scene
        controller: root.controller
        onGalleryRequested: root.openGallery()
        onMenuRequested: opener => root.statusMenuRequested(opener, opener.mapToItem(root, 0, opener.height + 6))
    }

    // Made when it is opened, gone with the panel: it is rarely seen.
    LazyItem {
        id: settings

        readonly property bool wanted: root.viewModel.onboardingCompleted && root.viewModel.showSettings && (root.shown || root.opacity > 0)
        // The panel itself moves while it opens and closes.
        readonly property bool fades: root.opacity === 1
        // They were asked for, not just shown again with the panel.
        property bool takesFocus: false

        function giveFocus(): void {
            if (!takesFocus || !item)
                return;
            takesFocus = false;
            (item as ThemeSettingsView).takeFocus();
        }

        anchors.fill: parent
        anchors.topMargin: root.topInset
        active: wanted || opacity > 0
        opacity: wanted ? 1 : 0
        scale: active ? 1 : 0.95
        transformOrigin: Item.Top
        enabled: wanted && root.shown
        onLoaded: giveFocus()
        sourceComponent: ThemeSettingsView {
            theme: root.scene.theme
            settings: root.scene.appSettings
            loginItem: root.scene.loginItem
            updater: root.scene.updater
        }

        Behavior on opacity {
            enabled: settings.fades

            MotionAnimation {
                movement: Motion.fade
            }
        }
        Behavior on scale {
            enabled: settings.fades && settings.wanted

            MotionAnimation {
                movement: Motion.panel
            }
        }
    }

    Flickable {
        id: page

        readonly property bool wanted: root.viewModel.onboardingCompleted && !root.viewModel.showSettings
        // Its drags are those of the tiles.
        readonly property bool scrollsByWheel: !root.viewModel.optionsOpen
        property real presence: root.viewModel.showSettings ? 0 : 1

        anchors.fill: parent
        anchors.topMargin: root.topInset
        anchors.bottomMargin: 24
        clip: contentHeight > height
        visible: opacity > 0
        enabled: wanted && !root.galleryOpen
        opacity: presence * root.arrival
        interactive: false
        contentHeight: Math.max(grid.implicitHeight, grid.turnedBottom)
        // A tile that grows as it turns over is followed to its end.
        onContentHeightChanged: contentY = Math.max(contentY, grid.turnedBottom - height)

        Behavior on presence {
            enabled: settings.fades

            MotionAnimation {
                movement: Motion.fade
            }
        }

        WidgetGridView {
            id: grid

            x: (parent.width - implicitWidth) / 2
            catalog: root.scene.catalog
            grid: root.scene.grid
            tiles: root.scene.tiles
            drag: root.scene.gridDrag
            viewState: root.viewModel
            theme: root.scene.theme
            page: root.viewModel.currentPage
            open: root.shown && page.wanted
            fading: root.opacity > 0 && page.opacity > 0
            onMenuRequested: (tile, instanceId, kind, position) => root.menuRequested(tile, instanceId, kind, mapToItem(root, position))
        }
        WheelHandler {
            enabled: !root.viewModel.optionsOpen
            onWheel: event => {
                const most = Math.max(0, page.contentHeight - page.height);
                page.contentY = Math.max(0, Math.min(most, page.contentY - event.angleDelta.y / 2));
            }
        }
    }

    Item {
        anchors.fill: parent
        z: 2
        visible: opacity > 0
        // What fades away catches no clicks.
        enabled: root.galleryOpen
        opacity: root.galleryOpen ? 1 : 0

        Behavior on opacity {
            id: curtain

            readonly property bool opens: targetValue === 1

            MotionAnimation {
                movement: curtain.opens ? Motion.panel : Motion.fade
            }
        }

        // As large as the panel: it does not stay for the next time.
        LazyItem {
            anchors.fill: parent
            active: parent.visible
            sourceComponent: NotchOutline {
                filled: true
                color: Qt.rgba(0, 0, 0, 0.55)

                Tap {
                    onTapped: root.closeGallery()
                }
            }
        }
        WidgetGallery {
            id: gallery

            anchors.horizontalCenter: parent.horizontalCenter
            y: root.topInset
            width: Math.min(380, parent.width - 32)
            height: parent.height - root.topInset - 24
            catalog: root.scene.catalog
            theme: root.scene.theme
            open: root.galleryOpen && root.shown
            onAdded: kind => {
                root.controller.addWidget(kind);
                root.closeGallery();
            }
            onClosed: root.closeGallery()
        }
    }
}
