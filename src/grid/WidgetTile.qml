pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid

// The frame around a widget: glass, hover, flip and the ways to its menu.
Item {
    id: root

    required property string instanceId
    required property string kind
    required property int page
    required property rect frame
    required property int col
    required property int row
    required property var instance
    required property WidgetCatalog catalog
    required property ThemeStore theme
    required property GridViewState viewState
    required property bool leaving
    // It is drawn where it stands, or on its way to be.
    required property bool shown
    // Somebody can see and use it.
    required property bool live

    readonly property bool flipped: viewState.flippedWidget === instanceId
    readonly property bool isOneRow: frame.height < 80
    readonly property bool isSmall: isOneRow && frame.width < 80
    // From 0, the front, to 180, the back.
    property real angle: flipped ? 180 : 0
    property real entrance: shown && isMade ? 1 : 0
    // An entrance needs something to start from.
    property bool isMade: false
    readonly property real foot: y + height

    signal departed
    signal menuRequested(point position)
    signal dragStarted
    signal dragMoved(point position)
    signal dragEnded(point position)

    x: frame.x
    y: frame.y
    width: frame.width
    height: frame.height + (flipped && isOneRow ? 110 : 0)
    // What it shows beside itself, such as the text of a tool tip, is above its neighbours.
    z: hover.hovered ? 1 : 0
    opacity: entrance
    visible: entrance > 0
    enabled: live
    transformOrigin: shown ? Item.Top : Item.Center
    scale: (shown ? 0.85 + 0.15 * entrance : 0.8 + 0.2 * entrance) * (hover.hovered && !Motion.reduced ? 1.02 : flipped ? 0.98 : 1)
    activeFocusOnTab: live
    Component.onCompleted: isMade = true

    function requestMenu(): void {
        menuRequested(Qt.point(0, height + 6));
    }

    Accessible.role: Accessible.ListItem
    Accessible.name: catalog.displayName(kind)
    Accessible.onPressAction: requestMenu()
    Keys.onPressed: event => {
        const shiftF10 = event.key === Qt.Key_F10 && (event.modifiers & Qt.ShiftModifier);
        // What is inside of the tile has a use of its own for these.
        const press = activeFocus && [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key);
        const moved = activeFocus && (event.modifiers & Qt.ControlModifier) && catalog.move(instanceId, event.key);
        const opens = event.key === Qt.Key_Menu || shiftF10 || press;
        if (opens)
            requestMenu();
        event.accepted = opens || moved;
    }
    // A tile that goes leaves the focus to what is before it; it keeps the mark of it when it can no longer have it.
    onEnabledChanged: {
        if (!enabled && focus)
            nextItemInFocusChain(false).forceActiveFocus(Qt.TabFocusReason);
    }
    onFlippedChanged: {
        if (!flipped && live && InputModality.isKeyboard)
            forceActiveFocus(Qt.TabFocusReason);
    }

    Behavior on x {
        enabled: root.entrance === 1

        MotionAnimation {
            movement: Motion.layout
        }
    }
    Behavior on y {
        enabled: root.entrance === 1

        MotionAnimation {
            movement: Motion.layout
        }
    }
    Behavior on width {
        enabled: root.entrance === 1

        MotionAnimation {
            movement: Motion.layout
        }
    }
    Behavior on height {
        enabled: root.entrance === 1

        MotionAnimation {
            movement: Motion.layout
        }
    }
    Behavior on angle {
        MotionAnimation {
            movement: Motion.flip
        }
    }
    Behavior on scale {
        enabled: root.entrance === 1

        MotionAnimation {
            movement: Motion.hover
        }
    }
    Behavior on entrance {
        id: passage

        readonly property bool comesIn: targetValue === 1

        SequentialAnimation {
            PauseAnimation {
                duration: passage.comesIn ? (root.row * 6 + root.col) * Motion.stagger : 0
            }
            MotionAnimation {
                movement: passage.comesIn ? Motion.entrance : Motion.fade
            }
        }
    }

    onEntranceChanged: {
        if (leaving && entrance === 0)
            departed();
    }
    onLeavingChanged: {
        if (leaving && entrance === 0)
            departed();
    }

    HoverHandler {
        id: hover
    }
    // A tap on a tile is the tile's own: it must not reach the bare surface and close the panel.
    Tap {}
    Tap {
        acceptedButtons: Qt.RightButton
        onTapped: point => root.menuRequested(point.position)
    }
    DragHandler {
        target: null
        acceptedButtons: Qt.LeftButton
        // What a text, a slider or a scrolled list has begun is theirs.
        grabPermissions: PointerHandler.CanTakeOverFromHandlersOfDifferentType | PointerHandler.ApprovesTakeOverByAnything
        onActiveChanged: active ? root.dragStarted() : root.dragEnded(centroid.position)
        onCentroidChanged: {
            if (active)
                root.dragMoved(centroid.position);
        }
    }

    // A turn about the vertical axis, seen from the front: the width shrinks to nothing and comes back.
    transform: Scale {
        origin.x: root.width / 2
        xScale: Math.max(Math.abs(Math.cos(root.angle * Math.PI / 180)), 0.001)
    }

    GlassTileBackground {
        anchors.fill: parent
        theme: root.theme.shown
        strength: root.theme.glassStrength
        focusLevel: hover.hovered ? 1 : 0
        solid: root.isOneRow && root.angle > 0
        reduceTransparency: Motion.opaque

        Behavior on focusLevel {
            MotionAnimation {
                movement: Motion.hover
            }
        }
    }

    WidgetHost {
        id: front

        anchors.fill: parent
        anchors.margins: 8
        visible: root.angle < 90
        catalog: root.catalog
        kind: root.kind
        instance: root.instance
        live: root.live

        Symbol {
            anchors.centerIn: parent
            visible: !front.hasView
            name: "questionmark.circle"
            size: 22
            color: root.theme.shown.textSecondary
        }
    }

    FocusRing {
        corner: 22
        gap: 0
        border.color: root.theme.shown.textPrimary
    }

    LazyItem {
        id: back

        function takeFocus(): void {
            if (visible && item && root.flipped)
                (item as TileBack).takeFocus();
        }

        anchors.fill: parent
        active: root.flipped || root.angle > 0
        visible: root.angle >= 90
        onLoaded: takeFocus()
        onVisibleChanged: takeFocus()
        sourceComponent: TileBack {
            catalog: root.catalog
            theme: root.theme
            kind: root.kind
            instance: root.instance
            closesOnTap: root.isSmall
            onCloseRequested: root.viewState.clearFlip()
        }
    }
}
