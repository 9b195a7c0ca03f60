import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Sensors

Item {
    id: root

    required property WidgetContext context
    required property MachinePorts machine
    readonly property theme colors: context.theme.shown
    readonly property bool isSmall: context.size === "small"
    readonly property bool isLarge: context.size === "large"

    SystemFace {
        id: system

        context: root.context
        machine: root.machine
    }

    component Meter: MeterRing {
        width: root.isLarge ? 66 : root.height
        height: width
        colors: root.colors
        lineWidth: root.isLarge ? 6 : 5
        textSize: root.isLarge ? 15 : 13
    }

    WidgetTitle {
        visible: root.isLarge
        x: 4
        y: 3
        colors: root.colors
        symbol: "cpu"
        text: "CPU / RAM"
    }
    Loader {
        anchors.fill: parent
        sourceComponent: root.isSmall ? twoInOne : sideBySide

        // Where there is room for one only.
        Component {
            id: twoInOne

            Item {
                MeterRing {
                    anchors.fill: parent
                    colors: root.colors
                    value: system.cpu
                    text: ""
                    tint: system.cpuTint
                    lineWidth: 4
                    Accessible.name: "CPU " + system.cpuText
                }
                MeterRing {
                    anchors.fill: parent
                    anchors.margins: 7
                    colors: root.colors
                    value: system.ram
                    text: ""
                    tint: system.ramTint
                    lineWidth: 4
                    Accessible.name: "RAM " + system.ramText
                }
                // The outer ring's number above the inner one's.
                Column {
                    anchors.centerIn: parent
                    spacing: -1

                    Text {
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: system.cpuText
                        color: root.colors.textPrimary
                        font.family: Fonts.rounded
                        font.pixelSize: 10
                        font.weight: Font.Bold
                    }
                    Text {
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: system.ramText
                        color: root.colors.textSecondary
                        font.family: Fonts.rounded
                        font.pixelSize: 9
                        font.weight: Font.DemiBold
                    }
                }
            }
        }
        Component {
            id: sideBySide

            Item {
                Meter {
                    x: root.isLarge ? 0 : (root.width / 2 - width) / 2
                    y: root.isLarge ? 33 : 0
                    value: system.cpu
                    text: system.cpuText
                    caption: "CPU"
                    tint: system.cpuTint
                }
                Meter {
                    x: root.isLarge ? root.width - width : root.width / 2 + (root.width / 2 - width) / 2
                    y: root.isLarge ? 33 : 0
                    value: system.ram
                    text: system.ramText
                    caption: "RAM"
                    tint: system.ramTint
                }
            }
        }
    }
    Caption {
        visible: root.isLarge
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 10
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        colors: root.colors
        text: system.detail
    }
}
