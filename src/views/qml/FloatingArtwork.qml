import QtQuick
import Brellowind.Views

/** The cover, gliding between the thumbnail's place and the panel's. */
Item {
    id: root

    required property NotchRootModel model
    required property real expansion
    required property Item pill

    readonly property bool popsOut: model.coverHovered && !model.isArtExpanded

    x: pill.x + Style.mix(Style.sidePadding, Style.panelSidePadding, expansion)
    y: Style.mix(Style.topPadding, Style.panelTopPadding + Style.bandHeight + Style.panelSpacing, expansion)
    width: Style.swell(Style.thumbnailWidth, Style.artworkSide, expansion)
    height: Style.swell(Style.bandHeight, Style.artworkSide, expansion)

    SpringValue {
        id: pop

        target: root.popsOut ? 1 : 0
        spring: SpringValue.Hover
    }

    ArtworkImage {
        anchors.fill: parent
        image: root.model.coverImage
        radius: Math.max(0, Style.mix(Style.thumbnailRadius, Style.artworkRadius, root.expansion))
        scale: 1 + 0.18 * pop.value
        rotation: -6 * pop.value
    }

    // Laid out once for the whole artwork, with which it grows.
    Loader {
        anchors.bottom: parent.bottom
        width: Style.artworkSide
        transformOrigin: Item.BottomLeft
        scale: parent.width / Style.artworkSide
        opacity: Math.min(1, Math.max(0, 2 * root.expansion - 1))
        active: opacity > 0

        Component.onCompleted: setSource("ArtworkCaption.qml", {
            coverSide: Style.artworkSide,
            model: root.model
        })
    }

    MouseArea {
        enabled: !root.model.isArtExpanded
        anchors.fill: parent
        hoverEnabled: true
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Show artwork")
        Accessible.ignored: !enabled
        Accessible.onPressAction: root.model.tapCover()

        onContainsMouseChanged: root.model.hoverCover(containsMouse)
        onClicked: root.model.tapCover()
    }
}
