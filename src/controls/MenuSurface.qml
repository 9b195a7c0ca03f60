pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// What menus and popovers stand on: the panel's own colour, a little lighter and never seen through.
Rectangle {
    required property theme colors

    radius: 10
    color: Qt.rgba(colors.surface.r + 0.07, colors.surface.g + 0.07, colors.surface.b + 0.07, 1)
    border.color: Qt.alpha(colors.textPrimary, 0.14)
}
