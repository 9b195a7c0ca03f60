pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Grid

// Where the dragged tile would land: green when it fits, red when not.
HighlightFrame {
    id: root

    required property bool fits

    color: fits ? "#30D158" : "#FF453A"
}
