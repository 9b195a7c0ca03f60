pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// One choice of a few, side by side, with its label above. Tab reaches the chosen one, and arrows choose.
Item {
    id: root

    required property theme colors
    required property string label
    required property list<string> labels
    required property list<string> values
    required property string value
    property bool available: true
    property bool showsLabel: true
    readonly property int current: values.indexOf(value)

    signal chosen(string value)

    function choose(index: int): void {
        const wrapped = (index + labels.length) % labels.length;
        segments.itemAt(wrapped).forceActiveFocus(Qt.TabFocusReason);
        chosen(values[wrapped]);
    }

    implicitHeight: (showsLabel ? caption.height + 3 : 0) + 22
    enabled: available
    opacity: available ? 1 : 0.4
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    Text {
        id: caption

        visible: root.showsLabel
        text: root.label
        color: root.colors.textSecondary
        font: Fonts.note
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 22
        radius: 7
        color: Qt.alpha(root.colors.textPrimary, 0.07)

        Row {
            id: row

            anchors.fill: parent
            anchors.margins: 2

            Repeater {
                id: segments

                model: root.labels.length

                AbstractButton {
                    id: segment

                    required property int index
                    readonly property bool selected: index === root.current

                    width: row.width / root.labels.length
                    height: row.height
                    activeFocusOnTab: activeFocus || index === Math.max(0, root.current)
                    label: root.labels[index]
                    role: Accessible.RadioButton
                    Accessible.checkable: true
                    Accessible.checked: selected
                    Accessible.onToggleAction: clicked()
                    Keys.onLeftPressed: root.choose(index - 1)
                    Keys.onUpPressed: root.choose(index - 1)
                    Keys.onRightPressed: root.choose(index + 1)
                    Keys.onDownPressed: root.choose(index + 1)
                    onClicked: root.chosen(root.values[index])

                    Rectangle {
                        anchors.fill: parent
                        radius: 5
                        color: segment.selected ? root.colors.accent : segment.hovered ? Qt.alpha(root.colors.textPrimary, 0.08) : "transparent"
                    }
                    FocusRing {
                        corner: 5
                        border.color: root.colors.textPrimary
                    }
                    Text {
                        anchors.centerIn: parent
                        width: Math.min(implicitWidth, parent.width - 2)
                        elide: Text.ElideRight
                        text: segment.label
                        color: segment.selected ? root.colors.textOnAccent : root.colors.textPrimary
                        font: Fonts.medium(Fonts.note)
                    }
                }
            }
        }
    }
}
