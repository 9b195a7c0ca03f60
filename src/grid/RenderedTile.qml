pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid

// A tile's front without an instance.
Item {
    id: root

    required property WidgetCatalog catalog
    required property ThemeStore theme
    required property string kind
    required property string size
    // The kind has a view that cannot be made.
    readonly property bool isBroken: front.isBroken

    GlassTileBackground {
        anchors.fill: parent
        anchors.margins: 2
        theme: root.theme.shown
        strength: root.theme.glassStrength
        reduceTransparency: false
    }
    WidgetHost {
        id: front

        anchors.fill: parent
        anchors.margins: 10
        catalog: root.catalog
        kind: root.kind
        size: root.size
        live: true

        Symbol {
            anchors.centerIn: parent
            visible: !front.hasView
            name: "questionmark.circle"
            size: 22
            color: root.theme.shown.textSecondary
        }
    }
}
