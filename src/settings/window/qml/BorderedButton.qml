// SPDX-License-Identifier: MIT

import QtQuick

/** A link styled as a button with a border; `prominent` marks the main action. */
Pressable {
    id: root

    property bool prominent: false

    implicitWidth: Math.ceil(label.implicitWidth) + 2 * label.x
    implicitHeight: Math.ceil(label.implicitHeight) + 2 * label.y
    cursorShape: Qt.PointingHandCursor
    Accessible.role: Accessible.Link

    Rectangle {
        readonly property color filled: root.down ? Style.prominentPressed : Style.text
        readonly property color plain: root.down ? Style.buttonPressed : Style.button

        anchors.fill: parent
        radius: root.radius
        color: root.prominent ? filled : plain
        border.width: root.prominent ? 0 : 1
        border.color: Style.hairline
    }
    Text {
        id: label

        x: 14
        y: 8
        text: root.text
        textFormat: Text.PlainText
        color: root.prominent ? Style.prominentText : Style.text
        font.pixelSize: Style.bodySize
        font.weight: Font.Medium
    }
}
