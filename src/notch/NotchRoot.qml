import QtQuick
import Brimlight.Theme
import Brimlight.Notch

// The root of the view tree: fills the surface and draws the pane where the panel says.
Item {
    id: root

    required property NotchController controller
    readonly property NotchPanel panel: controller.panel
    readonly property theme colors: controller.theme.current

    NotchPane {
        id: pane

        x: root.panel.pane.x
        y: root.panel.pane.y
        width: root.panel.pane.width
        height: root.panel.pane.height
        visible: root.panel.isDrawn
        color: root.colors.surface
        rim: root.colors.separator
        bottomRadius: 32
        clip: true

        TapHandler {
            onTapped: root.controller.tap()
        }

        Loader {
            id: content

            property bool wanted: false

            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.max(root.panel.pane.width, root.controller.viewModel.collapsedWidth)
            height: parent.height
            active: wanted
            // Made when first shown, then kept.
            Connections {
                target: root.panel

                function onIsDrawnChanged() {
                    content.wanted = true;
                }
            }

            sourceComponent: NotchContent {
                controller: root.controller // qmllint disable unqualified
            }
        }
    }
}
