pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid

// One page of the grid: free cells, the place a dragged tile would take, and the tiles. Tiles of other pages stay made.
Item {
    id: root

    required property WidgetCatalog catalog
    required property GridStore grid
    required property TileModel tiles
    required property GridDrag drag
    required property GridViewState viewState
    required property ThemeStore theme
    required property int page
    required property bool open
    // It fades as a whole, so its tiles stay until it has gone.
    property bool fading: false
    property WidgetTile turned: null
    // The lower edge of the tile that shows its back, which can be below the last row.
    readonly property real turnedBottom: turned && turned.shown ? turned.foot : 0

    signal menuRequested(Item tile, string instanceId, string kind, point position)

    Accessible.role: Accessible.List
    Accessible.name: "Widgets"
    implicitWidth: backdrop.implicitWidth
    implicitHeight: backdrop.implicitHeight

    GridBackdrop {
        id: backdrop

        width: implicitWidth
        height: implicitHeight
        grid: root.grid
        page: root.page
        dragging: root.drag.isActive
    }

    // Made anew wherever it appears, so that it does not come flying from where it was last.
    LazyItem {
        active: root.drag.hasTarget
        sourceComponent: DropHighlight {
            x: root.drag.highlight.x
            y: root.drag.highlight.y
            width: root.drag.highlight.width
            height: root.drag.highlight.height
            fits: root.drag.fits
            colors: root.theme.shown

            Behavior on x {
                MotionAnimation {
                    movement: Motion.quickFade
                }
            }
            Behavior on y {
                MotionAnimation {
                    movement: Motion.quickFade
                }
            }
        }
    }

    Repeater {
        model: root.tiles

        WidgetTile {
            id: tile

            catalog: root.catalog
            theme: root.theme
            viewState: root.viewState
            live: root.open && page === root.page && !leaving
            shown: (root.open || root.fading) && page === root.page && !leaving
            onDeparted: root.tiles.forgetLater(instanceId)
            z: flipped ? 2 : 0
            onFlippedChanged: {
                if (flipped)
                    root.turned = tile;
            }
            onMenuRequested: position => root.menuRequested(tile, instanceId, kind, mapToItem(root, position))
            onDragStarted: root.drag.begin(instanceId, page)
            onDragMoved: position => root.drag.move(mapToItem(root, position))
            onDragEnded: position => root.drag.drop(mapToItem(root, position))
        }
    }
}
