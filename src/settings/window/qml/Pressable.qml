// SPDX-License-Identifier: MIT

import QtQuick

/** Base of controls that can be pressed with pointer, Space or Enter. Shows a focus ring. */
Item {
    id: root

    property string text
    property real radius: Style.buttonRadius
    property Item ringed: root
    property int ringOutset: 3
    readonly property bool down: tap.pressed
    readonly property bool hovered: hover.hovered
    property alias cursorShape: hover.cursorShape

    signal clicked

    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: enabled && clicked()
    Keys.onSpacePressed: event => event.isAutoRepeat || clicked()
    Keys.onReturnPressed: event => event.isAutoRepeat || clicked()
    Keys.onEnterPressed: event => event.isAutoRepeat || clicked()

    TapHandler {
        id: tap

        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.clicked()
    }
    HoverHandler {
        id: hover
    }
    Rectangle {
        objectName: "focusRing"
        parent: root.ringed
        z: 1
        anchors.fill: parent
        anchors.margins: -root.ringOutset
        radius: root.radius + root.ringOutset
        visible: root.activeFocus
        color: "transparent"
        border.width: 2
        border.color: Style.focus
        antialiasing: true
    }
}
