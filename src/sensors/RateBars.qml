pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// The last rates as bars, the newest at the right.
Item {
    id: root

    required property theme colors
    required property list<real> bars
    required property int longest
    readonly property real pitch: width / longest

    Repeater {
        // What cannot be seen has no bars to keep.
        model: root.visible ? root.longest : 0

        Rectangle {
            required property int index
            // The oldest bars are missing at first.
            readonly property int sample: index - (root.longest - root.bars.length)
            readonly property real level: sample >= 0 ? root.bars[sample] : 0

            x: index * root.pitch
            width: Math.max(1.5, root.pitch - 1.5)
            height: Math.max(2, Math.round(root.height * level))
            y: root.height - height
            radius: Math.min(1.5, width / 2)
            color: Qt.alpha(root.colors.accent, sample < 0 ? 0.15 : 0.45 + 0.55 * level)
        }
    }
}
