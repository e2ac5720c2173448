// SPDX-License-Identifier: MIT

import QtQuick
import Brellowind.Settings

/** The content of the window: the tab strip and the selected page. */
Rectangle {
    id: root

    required property SettingsModel model
    readonly property Item page: model.tab === SettingsModel.General ? general : about

    width: Style.windowWidth
    height: page.y + page.implicitHeight
    color: Style.window

    Shortcut {
        sequences: ["Esc", "Ctrl+W"]
        onActivated: root.Window.window.close()
    }

    TabStrip {
        id: tabs

        width: parent.width
        model: root.model
    }
    Divider {
        id: divider

        anchors.top: tabs.bottom
        width: parent.width
    }
    GeneralTab {
        id: general

        objectName: "generalPage"
        anchors.top: divider.bottom
        width: parent.width
        height: implicitHeight
        visible: root.page === this
        model: root.model.general
    }
    AboutTab {
        id: about

        objectName: "aboutPage"
        anchors.top: divider.bottom
        width: parent.width
        height: implicitHeight
        visible: root.page === this
        model: root.model.about
    }
}
