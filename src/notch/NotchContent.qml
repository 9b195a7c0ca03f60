import QtQuick
import Brimlight.Theme
import Brimlight.Notch

// What the open panel shows.
Item {
    id: root

    required property NotchController controller
    readonly property theme colors: controller.theme.current
    readonly property bool shown: controller.viewModel.isExpanded

    opacity: shown ? 1 : 0
    scale: shown ? 1 : 0.95
    transformOrigin: Item.Top

    Behavior on opacity {
        NumberAnimation {
            duration: 200
        }
    }
    Behavior on scale {
        NumberAnimation {
            duration: 340
            easing.type: Easing.OutCubic
        }
    }

    Row {
        anchors.top: parent.top
        anchors.topMargin: (root.controller.viewModel.collapsedHeight - height) / 2
        anchors.left: parent.left
        anchors.leftMargin: 20
        spacing: 6

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 6
            height: 6
            radius: 3
            color: root.colors.accent
        }
        Text {
            text: qsTr("Brimlight")
            color: root.colors.textPrimary
            font.pixelSize: 12
            font.bold: true
        }
    }
    Text {
        anchors.centerIn: parent
        text: root.controller.appSettings.hourMinute(root.controller.ticker.now)
        color: root.colors.textPrimary
        font.pixelSize: 56
        font.weight: Font.Light
    }
}
