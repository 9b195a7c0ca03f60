import QtQuick
import Brimlight.Theme

// One choice of a few, side by side, with its label above.
Item {
    id: root

    required property theme colors
    required property string label
    required property list<string> labels
    required property list<string> values
    required property string value

    signal chosen(string value)

    implicitHeight: caption.height + 3 + 22
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    Text {
        id: caption

        text: root.label
        color: root.colors.textSecondary
        font.family: Fonts.rounded
        font.pixelSize: 10
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 22
        radius: 7
        color: Qt.rgba(1, 1, 1, 0.07)

        Row {
            anchors.fill: parent
            anchors.margins: 2

            Repeater {
                model: root.labels.length

                Rectangle {
                    id: segment

                    required property int index
                    readonly property bool selected: root.values[index] === root.value

                    width: parent.width / root.labels.length
                    height: parent.height
                    radius: 5
                    color: selected ? root.colors.accent : hover.hovered ? Qt.rgba(1, 1, 1, 0.08) : "transparent"
                    border.width: activeFocus ? 1 : 0
                    border.color: root.colors.textPrimary
                    activeFocusOnTab: true
                    Accessible.role: Accessible.RadioButton
                    Accessible.name: root.labels[index]
                    Accessible.checked: selected
                    Accessible.onPressAction: root.chosen(root.values[index])
                    Keys.onReturnPressed: root.chosen(root.values[index])
                    Keys.onSpacePressed: root.chosen(root.values[index])

                    Text {
                        anchors.centerIn: parent
                        width: Math.min(implicitWidth, parent.width - 2)
                        elide: Text.ElideRight
                        text: root.labels[segment.index]
                        color: segment.selected ? "white" : root.colors.textPrimary
                        font.family: Fonts.rounded
                        font.pixelSize: 10
                        font.weight: Font.Medium
                    }
                    HoverHandler {
                        id: hover
                    }
                    Tap {
                        onTapped: root.chosen(root.values[segment.index])
                    }
                }
            }
        }
    }
}
