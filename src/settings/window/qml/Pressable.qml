import QtQuick
import QtQuick.Controls.Basic

/** What can be pressed, with the pointer, Space or Enter, and shows when the keyboard is on it. */
AbstractButton {
    id: root

    property real radius: Style.buttonRadius
    property Item ringed: root
    property int ringOutset: 3

    implicitWidth: Math.ceil(implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.ceil(implicitContentHeight + topPadding + bottomPadding)
    focusPolicy: Qt.StrongFocus
    padding: 0
    font.pixelSize: Style.buttonSize
    Accessible.role: Accessible.Button
    Accessible.name: text
    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()

    FocusRing {
        parent: root.ringed
        shown: root.visualFocus
        outset: root.ringOutset
        radius: root.radius + outset
    }
}
