pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// How far something has been scrolled, at its right edge. It shows only where there is more than can be seen.
Rectangle {
    id: root

    required property Flickable target
    required property theme colors
    property bool moving: target.moving
    // Kept free above and below, clear of round corners.
    property real inset: 0
    readonly property real reach: target.height - inset

    y: target.y + target.visibleArea.yPosition * reach
    width: 3
    height: target.visibleArea.heightRatio * reach
    radius: 1.5
    visible: target.visibleArea.heightRatio < 1
    color: colors.textPrimary
    opacity: moving ? 0.45 : 0.16

    Behavior on opacity {
        MotionAnimation {
            movement: Motion.fade
        }
    }
}
