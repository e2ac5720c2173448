import QtQuick
import Brellowind.Views

/** Artist and title on the lower edge of the enlarged artwork. */
VisualEffectBlur {
    id: root

    required property NotchRootModel model

    height: texts.height + 2 * texts.y
    image: model.coverImage
    radius: Style.artworkRadius

    Column {
        id: texts

        x: Style.panelSidePadding
        y: 10
        width: Math.max(0, root.width - 2 * x)
        spacing: 2

        CaptionText {
            text: root.model.artist
            font.pixelSize: 11
            font.weight: Font.Medium
            color: Qt.rgba(1, 1, 1, 0.75)
        }

        CaptionText {
            text: root.model.title
            font.pixelSize: 14
            font.weight: Font.DemiBold
            color: "white"
        }
    }
}
