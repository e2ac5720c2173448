import QtQuick
import Brellowind.Views

/** The handle at the lower edge of a pill that the pointer is over. */
Item {
    id: root

    required property NotchRootModel model

    width: Style.grabberWidth
    height: Style.grabberPadding + Style.grabberHeight

    SpringValue {
        id: highlight

        target: root.model.grabberHovered ? 0.25 : 0.15
        spring: SpringValue.Hover
    }

    Capsule {
        y: Style.grabberPadding
        width: parent.width
        height: Style.grabberHeight
        color: Qt.rgba(1, 1, 1, highlight.value)
    }

    MouseArea {
        anchors.fill: parent
        anchors.margins: -12
        hoverEnabled: true
        Accessible.role: Accessible.Button
        Accessible.name: root.model.isArtExpanded ? qsTr("Close artwork") : root.model.isMinimized ? qsTr("Show lyrics") : qsTr("Hide lyrics")
        Accessible.onPressAction: root.model.tapGrabber()

        onContainsMouseChanged: root.model.hoverGrabber(containsMouse)
        onClicked: root.model.tapGrabber()
    }
}
