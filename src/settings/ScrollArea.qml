pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A column that is scrolled when it is higher than its place.
Item {
    id: root

    required property theme colors
    default property alias content: column.data

    Flickable {
        id: flickable

        function glideBy(distance: real): void {
            const from = glide.running ? glide.to : contentY;
            glide.to = Math.max(0, Math.min(contentHeight - height, from + distance));
            glide.restart();
        }

        anchors.fill: parent
        clip: true
        contentHeight: column.height + 24
        flickableDirection: Flickable.VerticalFlick
        boundsBehavior: Flickable.StopAtBounds

        NumberAnimation {
            id: glide

            target: flickable
            property: "contentY"
            duration: Motion.change.duration
            easing: Motion.change.easing
        }
        WheelHandler {
            onWheel: event => {
                if (flickable.contentHeight > flickable.height)
                    flickable.glideBy(-event.angleDelta.y / 2);
            }
        }
        Column {
            id: column

            x: 16
            width: flickable.width - 32
            spacing: 12
        }
    }
    Rectangle {
        // Clear of the round corner of the panel.
        readonly property real reach: flickable.height - 32

        x: parent.width - 10
        y: flickable.visibleArea.yPosition * reach
        width: 3
        height: flickable.visibleArea.heightRatio * reach
        radius: 1.5
        visible: flickable.visibleArea.heightRatio < 1
        color: root.colors.textPrimary
        opacity: flickable.moving || glide.running ? 0.45 : 0.16

        Behavior on opacity {
            NumberAnimation {
                duration: Motion.fade.duration
                easing: Motion.fade.easing
            }
        }
    }
}
