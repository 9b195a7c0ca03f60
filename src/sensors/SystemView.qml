pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Sensors

Item {
    id: root

    required property WidgetContext context
    required property SystemFace face
    readonly property theme colors: context.theme.shown
    readonly property bool isSmall: context.size === "small"
    readonly property bool isLarge: context.size === "large"

    component Meter: MeterRing {
        width: root.isLarge ? 66 : root.height
        height: width
        colors: root.colors
        lineWidth: root.isLarge ? 6 : 5
    }

    TileTitle {
        visible: root.isLarge
        colors: root.colors
        symbol: "cpu"
        text: "CPU / RAM"
    }
    LazyItem {
        anchors.fill: parent
        sourceComponent: root.isSmall ? twoInOne : sideBySide

        // Where there is room for one only.
        Component {
            id: twoInOne

            Item {
                MeterRing {
                    anchors.fill: parent
                    colors: root.colors
                    value: root.face.cpu
                    text: ""
                    tint: root.face.cpuTint
                    lineWidth: 4
                    Accessible.name: "CPU " + root.face.cpuText
                }
                MeterRing {
                    anchors.fill: parent
                    anchors.margins: 7
                    colors: root.colors
                    value: root.face.ram
                    text: ""
                    tint: root.face.ramTint
                    lineWidth: 4
                    Accessible.name: "RAM " + root.face.ramText
                }
                // The outer ring's number above the inner one's.
                Column {
                    anchors.centerIn: parent
                    spacing: -1

                    Text {
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: root.face.cpuText
                        color: root.colors.textPrimary
                        font: Fonts.bold(Fonts.note)
                    }
                    Text {
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: root.face.ramText
                        color: root.colors.textSecondary
                        font: Fonts.strong(Fonts.footnote)
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
                    value: root.face.cpu
                    text: root.face.cpuText
                    caption: "CPU"
                    tint: root.face.cpuTint
                }
                Meter {
                    x: root.isLarge ? root.width - width : root.width / 2 + (root.width / 2 - width) / 2
                    y: root.isLarge ? 33 : 0
                    value: root.face.ram
                    text: root.face.ramText
                    caption: "RAM"
                    tint: root.face.ramTint
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
        text: root.face.detail
    }
}
