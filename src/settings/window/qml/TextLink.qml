// SPDX-License-Identifier: MIT

import QtQuick

/** A text link. */
Pressable {
    id: root

    implicitWidth: Math.ceil(label.implicitWidth)
    implicitHeight: Math.ceil(label.implicitHeight)
    radius: 3
    cursorShape: Qt.PointingHandCursor
    Accessible.role: Accessible.Link

    Text {
        id: label

        text: root.text
        textFormat: Text.PlainText
        color: root.down ? Style.text : Style.secondaryText
        font.pixelSize: Style.captionSize
        font.underline: root.hovered
    }
}
