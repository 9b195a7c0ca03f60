pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Settings
import Brimlight.Theme

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
        font: Fonts.note
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
            TextField {
                x: root.labelWidth + 12
                width: 92
                height: 22
                label: qsTr("Hex value")
                colors: root.colors
                text: draft.hex
                maximumLength: 9
                font: Fonts.code
                onEdited: text => draft.pickHex(text)
                // What makes no sense is put back.
                onFinished: text = Qt.binding(() => draft.hex)
            }
        }
    }
}
