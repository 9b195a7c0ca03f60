pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Settings
import Brimlight.Theme
import Brimlight.Grid

// The parts of one colour. Each movement is a change of the theme.
Rectangle {
    id: root

    required property color current
    required property theme colors
    readonly property real labelWidth: Math.max(hueLabel.implicitWidth, saturationLabel.implicitWidth, brightnessLabel.implicitWidth, opacityLabel.implicitWidth)

    signal picked(color color)

    implicitHeight: column.height + 20
    radius: 10
    color: Qt.rgba(0, 0, 0, 0.22)

    ColorDraft {
        id: draft

        color: root.current
        onPicked: color => root.picked(color)
    }

    component Label: Text {
        anchors.verticalCenter: parent.verticalCenter
        color: root.colors.textSecondary
        font.family: Fonts.rounded
        font.pixelSize: 10
    }
    component Line: Item {
        width: column.width
        height: 22
    }
    component Track: Slider {
        x: root.labelWidth + 12
        width: parent.width - x
        colors: root.colors
    }

    Column {
        id: column

        x: 12
        y: 10
        width: parent.width - 24
        spacing: 4

        Line {
            Label {
                id: hueLabel

                text: qsTr("Hue")
            }
            Track {
                label: hueLabel.text
                position: draft.hue
                gradient: Gradient {
                    orientation: Gradient.Horizontal

                    GradientStop {
                        position: 0
                        color: "#FF0000"
                    }
                    GradientStop {
                        position: 0.167
                        color: "#FFFF00"
                    }
                    GradientStop {
                        position: 0.333
                        color: "#00FF00"
                    }
                    GradientStop {
                        position: 0.5
                        color: "#00FFFF"
                    }
                    GradientStop {
                        position: 0.667
                        color: "#0000FF"
                    }
                    GradientStop {
                        position: 0.833
                        color: "#FF00FF"
                    }
                    GradientStop {
                        position: 1
                        color: "#FF0000"
                    }
                }
                onMoved: to => draft.pickHue(to)
            }
        }
        Line {
            Label {
                id: saturationLabel

                text: qsTr("Saturation")
            }
            Track {
                label: saturationLabel.text
                position: draft.saturation
                gradient: Gradient {
                    orientation: Gradient.Horizontal

                    GradientStop {
                        position: 0
                        color: Qt.hsva(draft.hue, 0, draft.brightness, 1)
                    }
                    GradientStop {
                        position: 1
                        color: Qt.hsva(draft.hue, 1, draft.brightness, 1)
                    }
                }
                onMoved: to => draft.pickSaturation(to)
            }
        }
        Line {
            Label {
                id: brightnessLabel

                text: qsTr("Brightness")
            }
            Track {
                label: brightnessLabel.text
                position: draft.brightness
                gradient: Gradient {
                    orientation: Gradient.Horizontal

                    GradientStop {
                        position: 0
                        color: "black"
                    }
                    GradientStop {
                        position: 1
                        color: Qt.hsva(draft.hue, draft.saturation, 1, 1)
                    }
                }
                onMoved: to => draft.pickBrightness(to)
            }
        }
        Line {
            Label {
                id: opacityLabel

                text: qsTr("Opacity")
            }
            Track {
                label: opacityLabel.text
                position: draft.opacity
                gradient: Gradient {
                    orientation: Gradient.Horizontal

                    GradientStop {
                        position: 0
                        color: Qt.hsva(draft.hue, draft.saturation, draft.brightness, 0)
                    }
                    GradientStop {
                        position: 1
                        color: Qt.hsva(draft.hue, draft.saturation, draft.brightness, 1)
                    }
                }
                onMoved: to => draft.pickOpacity(to)
            }
        }
        Line {
            Label {
                text: "Hex"
            }
            Rectangle {
                x: root.labelWidth + 12
                width: 92
                height: 22
                radius: 6
                color: Qt.rgba(1, 1, 1, 0.08)
                border.color: Qt.rgba(1, 1, 1, hex.activeFocus ? 0.4 : 0.1)

                TextInput {
                    id: hex

                    anchors.fill: parent
                    leftPadding: 8
                    rightPadding: 8
                    verticalAlignment: TextInput.AlignVCenter
                    text: draft.hex
                    maximumLength: 9
                    selectByMouse: true
                    clip: true
                    color: root.colors.textPrimary
                    selectionColor: root.colors.accent
                    selectedTextColor: root.colors.textOnAccent
                    font.family: Fonts.monospaced
                    font.pixelSize: 11
                    activeFocusOnTab: true
                    Accessible.role: Accessible.EditableText
                    Accessible.name: qsTr("Hex value")
                    Accessible.editable: true
                    Accessible.focusable: true
                    onTextEdited: draft.pickHex(text)
                    // What makes no sense is put back.
                    onEditingFinished: text = Qt.binding(() => draft.hex)
                }
                FocusRing {
                    target: hex
                    corner: 6
                    border.color: root.colors.textPrimary
                }
            }
        }
    }
}
