pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid

// The sheet from which widgets are added, one card a kind.
Item {
    id: root

    required property WidgetCatalog catalog
    required property ThemeStore theme
    required property bool open
    readonly property bool takesKeyboard: true

    signal added(string kind)
    signal closed

    function takeFocus(): void {
        cards.forceActiveFocus();
    }

    Accessible.role: Accessible.Dialog
    Accessible.name: "Add a widget"
    Keys.onEscapePressed: closed()

    DropShadow {
        anchors.fill: parent
        anchors.topMargin: 12
        anchors.bottomMargin: -12
        color: Qt.rgba(0, 0, 0, 0.45)
        corner: 22
        radius: 28
    }
    Rectangle {
        anchors.fill: parent
        radius: 22
        color: root.theme.shown.surface
    }
    Tap {}

    Heading {
        id: heading

        x: 32
        y: 16
        text: "Add a widget"
        colors: root.theme.shown
        font: Fonts.strong(Fonts.title)
    }
    IconButton {
        id: close

        // Its tool tip lies over the cards.
        z: 1
        anchors.right: parent.right
        anchors.rightMargin: 29
        anchors.verticalCenter: heading.verticalCenter
        width: 22
        height: 22
        symbol: "xmark.circle.fill"
        symbolSize: 17
        label: qsTr("Close")
        color: root.theme.shown.textSecondary
        onClicked: root.closed()

        ToolTipLabel {
            text: close.label
            shown: close.hovered || close.keyed
            colors: root.theme.shown
            anchors.top: parent.bottom
            anchors.topMargin: 4
            anchors.right: parent.right
        }
    }

    GridView {
        id: cards

        anchors.fill: parent
        anchors.topMargin: 46
        anchors.bottomMargin: 16
        // The sheet's own 16, the list's 12 and 4, less what each card leaves free around itself.
        anchors.leftMargin: 26
        anchors.rightMargin: 26
        clip: true
        cellWidth: width / 2
        cellHeight: 136 + 12
        cacheBuffer: 0
        boundsBehavior: Flickable.StopAtBounds
        model: root.catalog.gallery()
        activeFocusOnTab: true
        keyNavigationEnabled: true
        Accessible.role: Accessible.List
        Accessible.name: "Add a widget"

        delegate: FocusScope {
            id: slot

            required property var modelData

            width: cards.cellWidth
            height: cards.cellHeight

            GalleryCard {
                anchors.fill: parent
                anchors.margins: 6
                catalog: root.catalog
                theme: root.theme
                entry: slot.modelData
                live: root.open
                focus: true
                onClicked: root.added(slot.modelData.kind)
            }
        }
    }
}
