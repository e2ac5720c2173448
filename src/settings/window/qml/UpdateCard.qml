// SPDX-License-Identifier: MIT

import QtQuick
import Brellowind.Settings

/** The update card: version and update state, in the colour of the state. */
Rectangle {
    id: root

    required property GeneralModel model
    readonly property color tint: Style.tint(model.cardColor)

    implicitHeight: rows.height + 2 * Style.inset
    radius: Style.cardRadius
    color: model.checksForUpdates ? Qt.alpha(tint, model.cardTintOpacity) : Style.section
    Accessible.role: Accessible.Grouping
    Accessible.name: model.checksForUpdates ? model.cardTitle : ""
    Accessible.description: model.cardVersion

    Column {
        id: rows

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Style.inset }
        spacing: 12

        UpdateState {
            width: parent.width
            visible: root.model.checksForUpdates
            model: root.model
            tint: root.tint
        }
        Divider {
            width: parent.width
            visible: root.model.checksForUpdates
        }
        UpdateAction {
            width: parent.width
            model: root.model
        }
    }
}
