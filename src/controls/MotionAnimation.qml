pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// Applies a movement by name, to a number or a colour: `Behavior on x { MotionAnimation { movement: Motion.layout } }`.
PropertyAnimation {
    required property motion movement

    duration: movement.duration
    easing: movement.easing
}
