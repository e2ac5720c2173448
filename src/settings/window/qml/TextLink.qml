import QtQuick

/** A word that is a link. */
Pressable {
    id: root

    radius: 3
    font.pixelSize: Style.captionSize
    font.underline: hovered
    Accessible.role: Accessible.Link

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        font: root.font
        color: root.down ? Style.text : Style.secondaryText
    }
}
