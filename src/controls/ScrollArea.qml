pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A column that is scrolled when it is higher than its place.
Item {
    id: root

    required property theme colors
    // Kept free beside the column, and below its end.
    property real margin: 16
    property real foot: 24
    property alias spacing: column.spacing
    default property alias content: column.data

    Flickable {
        id: flickable

        function glideBy(distance: real): void {
            const from = glide.running ? glide.to : contentY;
            glide.to = Math.max(0, Math.min(contentHeight - height, from + distance));
            glide.restart();
        }

        anchors.fill: parent
        clip: true
        contentHeight: column.height + root.foot
        flickableDirection: Flickable.VerticalFlick
        boundsBehavior: Flickable.StopAtBounds

        MotionAnimation {
            id: glide

            target: flickable
            property: "contentY"
            movement: Motion.change
        }
        WheelHandler {
            onWheel: event => {
                if (flickable.contentHeight > flickable.height)
                    flickable.glideBy(-event.angleDelta.y / 2);
            }
        }
        Column {
            id: column

            x: root.margin
            width: flickable.width - 2 * root.margin
            spacing: 12
        }
    }
    ScrollMark {
        x: parent.width - (root.margin > 8 ? 10 : 3)
        target: flickable
        colors: root.colors
        moving: flickable.moving || glide.running
        // Clear of the round corner of the panel.
        inset: root.foot + 8
    }
}
