// SPDX-License-Identifier: MIT

import QtQuick
import Brellowind.Settings

/** The upper row of the update card: the state. */
Item {
    id: root

    required property GeneralModel model
    required property color tint

    implicitHeight: Style.scaled(20)

    Symbol {
        objectName: "stateIcon"
        width: 20
        height: 20
        visible: name !== ""
        name: root.model.cardIcon
        color: root.tint
    }
    ProgressIndicator {
        objectName: "stateProgress"
        x: 2
        y: 2
        visible: root.model.cardIcon === ""
        color: root.tint
    }
    PlainText {
        objectName: "stateTitle"
        anchors { left: parent.left; leftMargin: 30; verticalCenter: parent.verticalCenter }
        text: root.model.cardTitle
        color: "white"
        font.pixelSize: Style.titleSize
        font.bold: true
    }
}
