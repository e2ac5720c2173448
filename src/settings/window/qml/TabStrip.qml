// SPDX-License-Identifier: MIT

import QtQuick
import Brellowind.Settings

/** The tabs of the window. The left and right arrow keys select the neighbour. */
FocusScope {
    id: root

    required property SettingsModel model

    implicitHeight: row.height + 16
    Accessible.role: Accessible.PageTabList
    Accessible.name: "Settings"

    Row {
        id: row

        anchors.centerIn: parent
        spacing: 4

        TabItem {
            id: general

            objectName: "generalTab"
            text: "General"
            symbol: "gearshape"
            selected: root.model.tab === SettingsModel.General
            onClicked: root.model.selectTab(SettingsModel.General)
            Keys.onRightPressed: about.clicked()
        }
        TabItem {
            id: about

            objectName: "aboutTab"
            text: "About"
            symbol: "info.circle"
            selected: root.model.tab === SettingsModel.About
            onClicked: root.model.selectTab(SettingsModel.About)
            Keys.onLeftPressed: general.clicked()
        }
    }
}
