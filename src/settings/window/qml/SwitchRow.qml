// SPDX-License-Identifier: MIT

import QtQuick

/** A row with a switch; the whole row is clickable. The switch always shows the model's value. */
Pressable {
    id: root

    required property bool on

    /** Why the switch could not be changed; empty if it was. */
    property string error

    width: parent ? parent.width : 0
    height: Math.max(Style.rowHeight, words.height + 16)
    ringed: track
    radius: track.radius
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: on
    Accessible.description: error
    Accessible.onToggleAction: enabled && clicked()

    Column {
        id: words

        anchors {
            left: parent.left; leftMargin: Style.inset
            right: track.left; rightMargin: Style.inset
            verticalCenter: parent.verticalCenter
        }
        spacing: 2

        PlainText {
            text: root.text
            Accessible.ignored: true
        }
        PlainText {
            objectName: "switchError"
            width: parent.width
            visible: text !== ""
            text: root.error
            color: Style.red
            font.pixelSize: Style.captionSize
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
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
