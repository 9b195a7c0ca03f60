pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
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
            Label {
                text: qsTr("Checking for updates...")
                colors: root.colors
                color: root.colors.textSecondary
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

        Hint {
            id: version

            text: status.versionText
            colors: root.colors
        }
        Hint {
            anchors.right: parent.right
            visible: text !== ""
            text: status.lastCheckedText
            colors: root.colors
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
            color: status.isError ? root.colors.warning : root.colors.good
        }
        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            visible: status.isInstalling
            color: root.colors.textPrimary
        }
        Label {
            id: message

            anchors.left: parent.left
            anchors.leftMargin: status.symbol !== "" || status.isInstalling ? 22 : 0
            anchors.right: action.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: status.message
            colors: root.colors
            wrapMode: Text.WordWrap
            elide: Text.ElideNone
            font: Fonts.strong(Fonts.label)
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
    Hint {
        width: parent.width
        visible: text !== ""
        text: status.detail
        colors: root.colors
    }
    ProgressBar {
        width: parent.width
        height: 14
        visible: status.isDownloading
        label: status.message
        labelWidth: 0
        fraction: status.progress
        text: status.progressText
        textWidth: 32
        font: Fonts.note
        colors: root.colors
        Accessible.name: status.message
        Accessible.description: status.progressText
    }
}
