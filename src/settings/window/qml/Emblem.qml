// SPDX-License-Identifier: MIT

import QtQuick

/** A miniature of the pill: cover, line, waveform. */
Rectangle {
    id: root

    implicitWidth: 132
    implicitHeight: 34
    radius: 12
    color: "black"
    border.width: 1
    border.color: Style.hairline
    Accessible.ignored: true

    Rectangle {
        anchors { left: parent.left; leftMargin: 11; verticalCenter: parent.verticalCenter }
        width: 12
        height: 12
        radius: 3
        color: Style.teal
    }
    Rectangle {
        anchors.centerIn: parent
        width: 52
        height: 4
        radius: 2
        color: Style.text
    }
    Row {
        anchors { right: parent.right; rightMargin: 11; verticalCenter: parent.verticalCenter }
        spacing: 2

        Repeater {
            model: [6, 12, 8]

            Rectangle {
                required property int modelData

                anchors.verticalCenter: parent ? parent.verticalCenter : undefined
                width: 2
                height: modelData
                radius: 1
                color: Style.text
            }
        }
    }
}
