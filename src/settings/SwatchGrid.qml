pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// All presets. Tab reaches one of them, arrows go to the others, and only a press chooses: a custom theme must not be
// lost in passing.
Grid {
    id: root

    required property ThemeStore theme
    // -1 under a custom theme.
    required property int marked
    required property string label
    // Where Tab comes in.
    property int entry: Math.max(0, marked)

    signal chosen(string id)

    function focusOn(index: int): void {
        if (index >= 0 && index < swatches.count) {
            entry = index;
            swatches.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
        }
    }

    columns: 5
    spacing: 12
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    Repeater {
        id: swatches

        model: root.theme.builtIns

        Swatch {
            required property int index
            required property theme modelData

            width: (root.width - (root.columns - 1) * root.spacing) / root.columns
            activeFocusOnTab: activeFocus || index === root.entry
            preset: modelData
            marked: index === root.marked
            colors: root.theme.shown
            Keys.onLeftPressed: root.focusOn(index - 1)
            Keys.onRightPressed: root.focusOn(index + 1)
            Keys.onUpPressed: root.focusOn(index - root.columns)
            Keys.onDownPressed: root.focusOn(index + root.columns)
            onClicked: {
                root.entry = index;
                root.chosen(modelData.id);
            }
        }
    }
}
