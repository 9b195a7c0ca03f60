import QtQuick
import Brimlight.Core
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

    Rectangle {
        anchors.fill: parent
        radius: 22
        color: Qt.rgba(root.theme.current.surface.r, root.theme.current.surface.g, root.theme.current.surface.b, 1)
        border.color: Qt.rgba(1, 1, 1, 0.08)
    }
    Tap {}

    Text {
        id: heading

        x: 20
        y: 16
        text: "Add a widget"
        color: root.theme.current.textPrimary
        font.family: Fonts.rounded
        font.pixelSize: 15
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    IconButton {
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: heading.verticalCenter
        width: 22
        height: 22
        symbol: "xmark.circle.fill"
        symbolSize: 17
        label: qsTr("Close")
        color: root.theme.current.textSecondary
        onClicked: root.closed()
    }

    GridView {
        id: cards

        anchors.fill: parent
        anchors.topMargin: 44
        anchors.margins: 16
        clip: true
        cellWidth: width / 2
        cellHeight: 84 + 14 + 14 + 40 + 12
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
