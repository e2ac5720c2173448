import QtQuick

/** One bar of the music on the emblem. */
Rectangle {
    anchors.verticalCenter: parent ? parent.verticalCenter : undefined
    width: 2
    radius: 1
    color: Style.text
}
