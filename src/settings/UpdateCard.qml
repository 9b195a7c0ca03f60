pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Grid
import Brimlight.Settings
import Brimlight.Theme
import Brimlight.Update

// How far getting a newer version has come.
SettingsCard {
    id: root

    required property UpdateService updater
    required property AppSettings settings

    title: qsTr("Software Update")
    symbol: "arrow.down.asymmetric.and.arrow.up.asymmetric"

    UpdateStatus {
        id: status

        updater: root.updater
        settings: root.settings
    }
    Item {
        width: parent.width
        height: 28

        Toggle {
            anchors.left: parent.left
            anchors.right: status.isChecking ? checking.left : checkNow.left
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            colors: root.colors
            label: qsTr("Automatically check for updates")
            on: root.updater.autoCheckEnabled
            onClicked: root.updater.autoCheckEnabled = !on
        }
        Row {
            id: checking

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: 8
            visible: status.isChecking

            Spinner {
                anchors.verticalCenter: parent.verticalCenter
                color: root.colors.textPrimary
            }
            Text {
                text: qsTr("Checking for updates...")
                color: root.colors.textSecondary
                font.family: Fonts.rounded
                font.pixelSize: 11
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        TextButton {
            id: checkNow

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            height: 24
            visible: !status.isChecking
            colors: root.colors
            text: qsTr("Check Now")
            onClicked: root.updater.checkForUpdates()
        }
    }
    Item {
        width: parent.width
        height: version.height

        Text {
            id: version

            text: status.versionText
            color: root.colors.textSecondary
            font.family: Fonts.rounded
            font.pixelSize: 10
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Text {
            anchors.right: parent.right
            visible: text !== ""
            text: status.lastCheckedText
            color: root.colors.textSecondary
            font.family: Fonts.rounded
            font.pixelSize: 10
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    Rectangle {
        width: parent.width
        height: 1
        visible: status.message !== ""
        color: root.colors.separator
    }
    Item {
        width: parent.width
        height: Math.max(24, message.height)
        visible: status.message !== ""

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: status.symbol !== ""
            name: status.symbol
            size: 12
            color: status.isError ? "#FF9F0A" : "#30D158"
        }
        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            visible: status.isInstalling
            color: root.colors.textPrimary
        }
        Text {
            id: message

            anchors.left: parent.left
            anchors.leftMargin: status.symbol !== "" || status.isInstalling ? 22 : 0
            anchors.right: action.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: status.message
            color: root.colors.textPrimary
            wrapMode: Text.WordWrap
            font.family: Fonts.rounded
            font.pixelSize: 11
            font.weight: Font.DemiBold
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Item {
            id: action

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(install.visible ? install.width : 0, cancel.visible ? cancel.width : 0)
            height: 24

            TextButton {
                id: install

                height: 24
                visible: status.isAvailable
                colors: root.colors
                prominent: true
                text: qsTr("Download & Install")
                onClicked: root.updater.downloadAndInstall()
            }
            TextButton {
                id: cancel

                height: 24
                visible: status.isDownloading
                colors: root.colors
                text: qsTr("Cancel")
                onClicked: root.updater.cancelDownload()
            }
        }
    }
    Text {
        width: parent.width
        visible: text !== ""
        text: status.detail
        textFormat: Text.PlainText
        color: root.colors.textSecondary
        wrapMode: Text.Wrap
        font.family: Fonts.rounded
        font.pixelSize: 10
        lineHeight: 1.15
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Item {
        width: parent.width
        height: 14
        visible: status.isDownloading
        Accessible.role: Accessible.ProgressBar
        Accessible.name: status.message
        Accessible.description: status.progressText

        Rectangle {
            anchors.left: parent.left
            anchors.right: percent.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            height: 5
            radius: 2.5
            color: Qt.alpha(root.colors.accent, 0.18)

            Rectangle {
                width: Math.max(height, parent.width * status.progress)
                height: parent.height
                radius: parent.radius
                color: root.colors.accent
            }
        }
        Text {
            id: percent

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 32
            horizontalAlignment: Text.AlignRight
            text: status.progressText
            color: root.colors.textPrimary
            font.family: Fonts.rounded
            font.pixelSize: 10
        }
    }
}
