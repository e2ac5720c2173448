import QtQuick
import Brellowind.Views

/** The whole window: the pill hangs from its top edge, the rest is clear. */
Item {
    id: root

    required property NotchRootModel model

    Rectangle {
        anchors {
            top: parent.top
            topMargin: -radius
            horizontalCenter: parent.horizontalCenter
        }
        width: Math.max(232, line.implicitWidth) + 40
        height: line.y + line.height + 12
        radius: 12
        color: "black"

        Text {
            id: line

            objectName: "lyricLine"
            anchors.horizontalCenter: parent.horizontalCenter
            y: parent.radius + 5 + 20 + 8
            text: root.model.currentLineText
            textFormat: Text.PlainText
            color: Qt.rgba(0.96, 0.96, 0.96, 1)
            font.pixelSize: 13
            font.weight: Font.Medium
        }
    }
}
