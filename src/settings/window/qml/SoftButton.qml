import QtQuick

/** A quiet button that dims under the pointer. */
Pressable {
    id: root

    horizontalPadding: 12
    verticalPadding: 8
    font.weight: Font.DemiBold
    opacity: highlight.level

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        font: root.font
        color: Style.buttonText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        radius: Style.buttonRadius
        color: root.down ? Style.buttonPressed : Style.button
    }

    HoverHighlight {
        id: highlight
    }
}
