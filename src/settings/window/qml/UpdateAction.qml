// SPDX-License-Identifier: MIT

import QtQuick
import Brellowind.Settings

/** The lower row of the update card: version and action. */
Item {
    id: root

    required property GeneralModel model

    implicitHeight: button.visible ? button.height : version.height

    PlainText {
        id: version

        objectName: "versionText"
        anchors { left: parent.left; right: button.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
        text: root.model.cardVersion
        color: Style.secondaryText
        elide: Text.ElideRight
    }
    SoftButton {
        id: button

        objectName: "updateButton"
        anchors.right: parent.right
        visible: root.model.checksForUpdates
        enabled: root.model.cardButtonEnabled
        text: root.model.cardButton
        onClicked: root.model.pressUpdateButton()
    }
}
