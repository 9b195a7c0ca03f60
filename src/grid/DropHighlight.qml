pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Grid
import Brimlight.Theme

// Where the dragged tile would land: green when it fits, red when not.
HighlightFrame {
    id: root

    required property bool fits
    required property theme colors

    color: fits ? colors.good : colors.critical
}
