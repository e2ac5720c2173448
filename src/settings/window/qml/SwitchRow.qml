// SPDX-License-Identifier: MIT

import QtQuick

/** A row with a switch; the whole row is clickable. The switch always shows the model's value. */
Pressable {
    id: root

    required property bool on

    width: parent ? parent.width : 0
    height: Style.rowHeight
    ringed: track
    radius: track.radius
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: on
    Accessible.onToggleAction: enabled && clicked()

    PlainText {
        anchors { left: parent.left; leftMargin: Style.inset; verticalCenter: parent.verticalCenter }
        text: root.text
        Accessible.ignored: true
    }
    Rectangle {
        id: track

        objectName: "switchTrack"
        anchors { right: parent.right; rightMargin: Style.inset; verticalCenter: parent.verticalCenter }
        width: 38
        height: 22
        radius: height / 2
        color: root.on ? Style.green : Style.buttonPressed

        Rectangle {
            x: root.on ? parent.width - width - 2 : 2
            y: 2
            width: 18
            height: 18
            radius: 9
            color: "white"

            Behavior on x {
                EaseOut {}
            }
        }
    }
}
