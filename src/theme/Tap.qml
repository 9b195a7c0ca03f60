pragma ComponentBehavior: Bound

import QtQuick

// A click that ends where it began, however long the button is held.
TapHandler {
    gesturePolicy: TapHandler.ReleaseWithinBounds
    longPressThreshold: 1e6
}
