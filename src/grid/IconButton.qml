pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A plain button that is only a symbol.
AbstractButton {
    id: root

    required property string symbol
    property real symbolSize: 12
    property int weight: Font.Normal
    property color color: "white"

    FocusRing {
        border.color: Qt.alpha(root.color, 1)
    }
    Symbol {
        anchors.centerIn: parent
        name: root.symbol
        size: root.symbolSize
        weight: root.weight
        color: root.color
    }
}
