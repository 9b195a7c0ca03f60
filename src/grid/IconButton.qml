import QtQuick
import Brimlight.Theme

// A plain button that is only a symbol.
Item {
    id: root

    required property string symbol
    required property string label
    property real symbolSize: 12
    property color color: "white"

    signal clicked

    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onSpacePressed: clicked()

    Rectangle {
        anchors.fill: parent
        anchors.margins: -2
        radius: height / 2
        visible: root.activeFocus
        color: "transparent"
        border.color: root.color
    }
    Symbol {
        anchors.centerIn: parent
        name: root.symbol
        size: root.symbolSize
        color: root.color
    }
    Tap {
        onTapped: root.clicked()
    }
}
