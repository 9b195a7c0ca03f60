pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Update

// The panel in which the user changes everything that is not a widget's own option. Every control writes at once.
Item {
    id: root

    required property ThemeStore theme
    required property AppSettings settings
    required property LoginItemService loginItem
    required property UpdateService updater
    property int activeTab: 0
    readonly property bool takesKeyboard: true

    function takeFocus(): void {
        (InputModality.isKeyboard ? general : root).forceActiveFocus(Qt.TabFocusReason);
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Settings")
    // Otherwise Tab would begin at the top of the panel.
    Keys.onTabPressed: general.forceActiveFocus(Qt.TabFocusReason)

    // A click that misses a control must not close the panel.
    Tap {}

    Row {
        id: tabs

        x: 16
        spacing: 8
        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTr("Settings")

        SettingsTab {
            id: general

            title: qsTr("General")
            symbol: "gearshape"
            active: root.activeTab === 0
            colors: root.theme.shown
            onClicked: root.activeTab = 0
        }
        SettingsTab {
            title: qsTr("Appearance")
            symbol: "paintpalette"
            active: root.activeTab === 1
            colors: root.theme.shown
            onClicked: root.activeTab = 1
        }
    }
    LazyItem {
        anchors.fill: parent
        anchors.topMargin: tabs.height + 12
        sourceComponent: root.activeTab === 0 ? generalTab : appearanceTab
    }
    Component {
        id: generalTab

        GeneralSettings {
            theme: root.theme
            settings: root.settings
            loginItem: root.loginItem
            updater: root.updater
        }
    }
    Component {
        id: appearanceTab

        AppearanceSettings {
            theme: root.theme
        }
    }
    PopoverLayer {
        anchors.fill: parent
        rest: root
    }
}
