import QtQuick
import Brellowind.Views

/** One entry of the context menu; it closes the menu before it acts. */
Rectangle {
    id: root

    required property MenuWindow menu
    required property string text

    signal triggered

    function trigger(): void {
        menu.close();
        triggered();
    }

    width: 190
    height: 26
    radius: 6
    color: area.containsMouse ? Qt.rgba(1, 1, 1, 0.14) : "transparent"

    Text {
        anchors.verticalCenter: parent.verticalCenter
        x: 10
        text: root.text
        textFormat: Text.PlainText
        color: Style.text
        font.pixelSize: 13
    }

    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        Accessible.role: Accessible.MenuItem
        Accessible.name: root.text
        Accessible.onPressAction: root.trigger()

        onClicked: root.trigger()
    }
}
