import QtQuick

/** Goes around what the keyboard is on. */
Rectangle {
    required property bool shown
    property int outset: 3

    z: 1
    anchors.fill: parent
    anchors.margins: -outset
    visible: shown
    color: "transparent"
    border.width: 2
    border.color: Style.focus
    antialiasing: true
}
