pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Controls
import Brimlight.Grid

// A widget that is something to write in.
Item {
    id: root

    required property WidgetContext context

    TextField {
        objectName: "field"
        width: parent.width
        label: "Note"
        text: "some milk"
        colors: root.context.theme.shown
    }
}
