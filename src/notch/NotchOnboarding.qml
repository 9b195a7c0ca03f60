pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Notch

// The first-run walk-through. Who has clicked on "Next" can go on with keys.
Item {
    id: root

    required property NotchScene scene
    required property NotchController controller
    readonly property theme colors: scene.theme.shown
    readonly property bool takesKeyboard: true
    readonly property bool live: scene.viewModel.isExpanded
    // The step that is shown, and between two of them while one takes the other's place.
    property real place: steps.current
    readonly property real off: steps.current - place

    Accessible.role: Accessible.Dialog
    Accessible.name: title.text

    OnboardingSteps {
        id: steps
    }

    Behavior on place {
        MotionAnimation {
            movement: Motion.onboarding
        }
    }

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.horizontalCenterOffset: 40 * root.off
        anchors.top: parent.top
        anchors.topMargin: 8
        spacing: 12
        opacity: 1 - Math.abs(root.off)

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 72
            height: 72

            Rectangle {
                anchors.fill: parent
                radius: width / 2
                color: root.colors.accent
                opacity: 0.06
                scale: pulse.scale * 1.12
            }
            Rectangle {
                id: pulse

                anchors.fill: parent
                radius: width / 2
                color: "transparent"
                border.width: 2
                border.color: root.colors.accent
                opacity: 0.4

                scale: 1 + 0.15 * swelling.value

                SlowPulse {
                    id: swelling

                    running: root.live && root.visible && !Motion.reduced
                }
            }
            Rectangle {
                anchors.fill: parent
                radius: width / 2
                color: root.colors.accent
                opacity: 0.15
            }
            Symbol {
                anchors.centerIn: parent
                name: steps.icon
                size: 36
                weight: Font.Bold
                color: root.colors.accent
            }
        }
        Heading {
            id: title

            anchors.horizontalCenter: parent.horizontalCenter
            text: steps.current >= 0 ? qsTr(steps.title()) : ""
            colors: root.colors
            font: Fonts.bold(Fonts.headline)
        }
        Hint {
            anchors.horizontalCenter: parent.horizontalCenter
            width: root.width - 96
            text: steps.current >= 0 ? qsTr(steps.description()) : ""
            colors: root.colors
            horizontalAlignment: Text.AlignHCenter
            font: Fonts.body
        }
    }

    Row {
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.margins: 16
        spacing: 8

        TextButton {
            visible: !steps.isLast
            text: qsTr("Skip")
            colors: root.colors
            onClicked: root.scene.viewModel.onboardingCompleted = true
        }
        TextButton {
            visible: steps.hasBack
            text: qsTr("Back")
            colors: root.colors
            onClicked: {
                forceActiveFocus();
                steps.back();
            }
        }
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 27
        spacing: 6

        Repeater {
            model: steps.count

            Rectangle {
                required property int index

                width: index === steps.current ? 16 : 6
                height: 6
                radius: 3
                color: index === steps.current ? root.colors.accent : Qt.alpha(root.colors.textPrimary, 0.3)

                Behavior on width {
                    MotionAnimation {
                        movement: Motion.onboarding
                    }
                }
                Behavior on color {
                    MotionAnimation {
                        movement: Motion.onboarding
                    }
                }
            }
        }
    }
    TextButton {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 16
        text: steps.isLast ? qsTr("Get Started") : qsTr("Next")
        colors: root.colors
        prominent: true
        onClicked: {
            forceActiveFocus();
            if (steps.isLast)
                root.scene.viewModel.onboardingCompleted = true;
            else
                steps.next();
        }
    }
}
