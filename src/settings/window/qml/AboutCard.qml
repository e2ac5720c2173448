// SPDX-License-Identifier: MIT

import QtQuick
import Brellowind.Settings

/** The program's name, version and tagline. */
Rectangle {
    id: root

    required property AboutModel model

    implicitHeight: column.height + 48
    radius: Style.cardRadius
    color: Style.card
    border.width: 1
    border.color: Style.hairline

    Column {
        id: column

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 24 }
        spacing: 4

        Emblem {
            anchors.horizontalCenter: parent.horizontalCenter
        }
        PlainText {
            anchors.horizontalCenter: parent.horizontalCenter
            topPadding: 12
            text: root.model.name
            font.pixelSize: Style.nameSize
            font.weight: Font.DemiBold
        }
        PlainText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.model.version
            color: Style.secondaryText
            font.pixelSize: Style.calloutSize
        }
        PlainText {
            anchors.horizontalCenter: parent.horizontalCenter
            topPadding: 8
            text: root.model.description
            color: Style.secondaryText
            font.pixelSize: Style.calloutSize
        }
    }
}
