import QtQuick
import Brellowind.Views

/** The black pill and all that is in it, hanging from the middle of the top edge. */
Item {
    id: root

    required property NotchRootModel model

    readonly property real bottomPadding: Style.mix(Style.minimizedBottomPadding, Style.bottomPadding, motion.unfold)
    readonly property real defaultHeight: Style.topPadding + Style.bandHeight + motion.unfold * (Style.spacing + line.implicitHeight) + motion.hover * (Style.spacing + Style.grabberPadding + Style.grabberHeight) + bottomPadding

    property PillMenu menu: null

    /** The menu is made when it is first wanted: most days it never is. */
    function openMenu(position: point): void {
        if (!menu)
            menu = menuComponent.createObject(root, {
                model: root.model
            }) as PillMenu;
        menu.popup(position);
    }

    transformOrigin: Item.Top
    scale: (1 + 0.03 * motion.hover) * motion.pulse

    PillMotion {
        id: motion

        model: root.model
        naturalLineWidth: line.naturalWidth
    }

    PillShape {
        id: shape

        objectName: "pill"

        x: (root.width - width) / 2
        width: Style.mix(motion.lineWidth + 2 * Style.sidePadding, Style.panelWidth, motion.expand)
        height: Style.swell(root.defaultHeight, panel.height, motion.expand)
        lift: motion.hover

        onWidthChanged: root.model.sizeChanged(width, height)
        onHeightChanged: root.model.sizeChanged(width, height)
        Component.onCompleted: root.model.sizeChanged(width, height)
    }

    MouseArea {
        function tap(): void {
            if (root.model.isArtExpanded)
                root.model.tapArtwork();
            else
                root.model.tapBackground();
        }

        anchors.fill: shape
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        Accessible.role: Accessible.Grouping
        Accessible.name: root.model.currentLineText
        Accessible.onPressAction: tap()

        onClicked: mouse => {
            if (mouse.button === Qt.RightButton)
                root.openMenu(mapToGlobal(mouse.x, mouse.y));
            else
                tap();
        }
    }

    // Just within the pill's sides, which stand beside its flaring top corners, and its bottom.
    Item {
        anchors.fill: shape
        anchors.leftMargin: shape.flare + 1
        anchors.rightMargin: shape.flare + 1
        anchors.bottomMargin: 1
        clip: true

        LyricText {
            id: line

            objectName: "lyricLine"
            anchors.horizontalCenter: parent.horizontalCenter
            y: Style.topPadding + Style.bandHeight + Style.spacing
            text: root.model.currentLineText
            present: !root.model.isMinimized
            opacity: Math.max(0, 1 - 2.5 * motion.expand) // gone before the artwork reaches it
            visible: opacity > 0
            color: Style.text
            font.pixelSize: 13
            font.weight: Font.Medium
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Loader {
            id: panel

            anchors.horizontalCenter: parent.horizontalCenter
            active: root.model.isArtExpanded || motion.expand !== 0
            opacity: Math.min(1, Math.max(0, motion.expand))
            visible: opacity > 0

            Component.onCompleted: setSource("ArtPanel.qml", {
                model: root.model
            })
        }
    }

    FloatingArtwork {
        objectName: "artwork"
        model: root.model
        expansion: motion.expand
        pill: shape
    }

    Waveform {
        objectName: "waveform"
        x: shape.x + shape.width - width - Style.mix(Style.sidePadding, Style.panelSidePadding, motion.expand)
        y: Style.mix(Style.topPadding, Style.panelTopPadding, motion.expand) + (Style.bandHeight - height) / 2
        model: root.model
    }

    Grabber {
        objectName: "grabber"
        anchors.horizontalCenter: parent.horizontalCenter
        y: shape.height - Style.mix(root.bottomPadding, Style.panelBottomPadding, motion.expand) - height
        opacity: Math.min(1, Math.max(0, motion.hover, motion.expand))
        visible: opacity > 0
        model: root.model
    }

    Component {
        id: menuComponent

        PillMenu {
            objectName: "menu"
        }
    }
}
