import QtQuick
import Brellowind.Views

/** What the artwork panel has beside the artwork itself: its room, and the line below it. */
Item {
    id: root

    required property NotchRootModel model

    width: Style.panelWidth
    height: line.y + line.implicitHeight + Style.panelSpacing + Style.grabberPadding + Style.grabberHeight + Style.panelBottomPadding

    LyricText {
        id: line

        objectName: "panelLine"
        anchors.horizontalCenter: parent.horizontalCenter
        y: Style.panelTopPadding + Style.bandHeight + Style.panelSpacing + Style.artworkSide + Style.panelSpacing
        text: root.model.currentLineText
        maximumWidth: Style.artworkSide
        color: Style.text
        font.pixelSize: 15
        font.weight: Font.DemiBold
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
