// SPDX-License-Identifier: MIT

import QtQuick

/** A flat button that dims when hovered. */
Pressable {
    id: root

    implicitWidth: Math.ceil(label.implicitWidth) + 2 * label.x
    implicitHeight: Math.ceil(label.implicitHeight) + 2 * label.y
    opacity: hovered ? Style.hoverOpacity : 1

    Behavior on opacity {
        EaseOut {}
    }

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: root.down ? Style.buttonPressed : Style.button
    }
    Text {
        id: label

        x: 12
        y: 8
        text: root.text
        textFormat: Text.PlainText
        color: Style.buttonText
        font.pixelSize: Style.buttonSize
        font.weight: Font.DemiBold
    }
}
