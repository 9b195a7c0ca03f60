pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Theme

// One colour of the theme with its opacity. A press opens what it is made of below.
Column {
    id: root

    required property string label
    required property string text
    required property color color
    required property theme colors
    property bool open: false

    signal picked(color color)
    signal toggled

    spacing: 6
    Keys.onEscapePressed: event => {
        event.accepted = open;
        if (open) {
            button.forceActiveFocus(Qt.TabFocusReason);
            toggled();
        }
    }

    AbstractButton {
        id: button

        width: root.width
        height: 26
        label: root.label
        Accessible.description: root.text
        Accessible.checkable: true
        Accessible.checked: root.open
        onClicked: root.toggled()

        Text {
            anchors.left: parent.left
            anchors.right: value.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            elide: Text.ElideRight
            text: root.label
            color: root.colors.textPrimary
            font: Fonts.label
        }
        Text {
            id: value

            anchors.right: well.left
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: root.colors.textSecondary
            font: Fonts.sized(Fonts.code, Fonts.note.pixelSize)
        }
        // Half of it on white and half on black, so that the opacity shows.
        Item {
            id: well

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 40
            height: 20

            Rectangle {
                anchors.fill: parent
                anchors.margins: 1
                radius: 5
                gradient: Gradient {
                    orientation: Gradient.Horizontal

                    GradientStop {
                        position: 0.499
                        color: "#E6E6E6"
                    }
                    GradientStop {
                        position: 0.501
                        color: "#1A1A1A"
                    }
                }
            }

            Rectangle {
                anchors.fill: parent
                radius: 6
                color: root.color
                border.width: root.open ? 2 : 1
                border.color: root.open ? root.colors.textPrimary : Qt.rgba(1, 1, 1, button.hovered ? 0.6 : 0.3)
            }
            FocusRing {
                target: button
                corner: 6
                border.color: root.colors.textPrimary
            }
        }
    }
    LazyItem {
        width: root.width
        active: root.open
        visible: active
        sourceComponent: ColorPanel {
            current: root.color
            colors: root.colors
            onPicked: color => root.picked(color)
        }
    }
}
