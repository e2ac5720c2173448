// SPDX-License-Identifier: MIT

import QtQuick

/** A row of the form: label and control. */
Item {
    id: root

    required property string label
    required property string action

    signal pressed

    width: parent ? parent.width : 0
    height: Math.max(Style.rowHeight, button.height + 12)

    PlainText {
        anchors { left: parent.left; leftMargin: Style.inset; verticalCenter: parent.verticalCenter }
        text: root.label
    }
    SoftButton {
        id: button

        anchors { right: parent.right; rightMargin: Style.inset; verticalCenter: parent.verticalCenter }
        text: root.action
        onClicked: root.pressed()
    }
}
