pragma ComponentBehavior: Bound

import QtQuick

// The title at the top of a tile, as far from its corner on every one.
WidgetTitle {
    x: 4
    y: 3
}
