pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid

// The settings side of a tile.
Item {
    id: root

    required property WidgetCatalog catalog
    required property ThemeStore theme
    required property string kind
    required property var instance
    required property bool closesOnTap
    readonly property bool takesKeyboard: true

    signal closeRequested

    function takeFocus(): void {
        const first = InputModality.isKeyboard ? root.nextItemInFocusChain() : root;
        first.forceActiveFocus(Qt.TabFocusReason);
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Settings")

    Tap {
        onTapped: {
            if (root.closesOnTap)
                root.closeRequested();
        }
    }

    // As far from the upper and lower edge as the tile's corners cut into what is scrolled past them.
    Flickable {
        id: scroll

        readonly property real cut: 4

        anchors.fill: parent
        anchors.topMargin: cut
        anchors.bottomMargin: cut
        clip: true
        visible: settings.hasView
        contentHeight: settings.height + 26 - 2 * cut
        boundsBehavior: Flickable.StopAtBounds

        WidgetHost {
            id: settings

            x: 12
            y: 14 - scroll.cut
            width: root.width - 24
            height: implicitHeight
            catalog: root.catalog
            kind: root.kind
            instance: root.instance
            settingsSide: true
            live: true
        }
    }

    Text {
        anchors.centerIn: parent
        visible: !settings.hasView
        text: "Settings coming soon"
        color: root.theme.shown.textSecondary
        font: Fonts.medium(Fonts.label)
    }

    IconButton {
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.margins: 8
        width: 18
        height: 18
        symbol: "xmark"
        symbolSize: 10
        weight: Font.Bold
        label: qsTr("Close")
        color: root.theme.shown.textPrimary
        opacity: 0.8
        onClicked: root.closeRequested()
    }
}
