import QtQuick

/** A button with an edge of its own; the prominent one is what a page is about. */
Pressable {
    id: root

    property bool prominent: false

    horizontalPadding: 14
    verticalPadding: 8
    font.pixelSize: Style.bodySize
    font.weight: Font.Medium
    Accessible.role: Accessible.Link

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        font: root.font
        color: root.prominent ? Style.prominentText : Style.text
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        readonly property color filled: root.down ? Style.prominentPressed : Style.text
        readonly property color plain: root.down ? Style.buttonPressed : Style.button

        radius: Style.buttonRadius
        color: root.prominent ? filled : plain
        border.width: root.prominent ? 0 : 1
        border.color: Style.hairline
    }
}
