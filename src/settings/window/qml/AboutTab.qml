// SPDX-License-Identifier: MIT

import QtQuick
import Brellowind.Settings

/** The About tab: program information and links. */
Item {
    id: root

    required property AboutModel model

    implicitHeight: Style.pageHeight

    AboutCard {
        id: card

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Style.margin }
        model: root.model
    }
    Row {
        anchors { top: card.bottom; topMargin: Style.inset; horizontalCenter: parent.horizontalCenter }
        spacing: 12

        BorderedButton {
            objectName: "websiteButton"
            text: "Visit our website"
            prominent: true
            visible: root.model.websiteURL !== ""
            onClicked: root.model.open(root.model.websiteURL)
        }
        BorderedButton {
            text: "Follow on X"
            visible: root.model.socialURL !== ""
            onClicked: root.model.open(root.model.socialURL)
        }
    }
    LegalFoot {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Style.margin }
        model: root.model
    }
}
