pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A button that is only a symbol, plain or on a disc.
AbstractButton {
    id: root

    required property string symbol
    property real symbolSize: 12
    property int weight: Font.Normal
    property color color: "white"
    // Behind the symbol; none when it is clear.
    property color disc: "transparent"

    implicitWidth: 20
    implicitHeight: 20

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        visible: root.disc.a > 0
        color: Qt.alpha(root.disc, root.disc.a * (root.pressed ? 1.3 : root.hovered ? 1.15 : 1))
    }
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
