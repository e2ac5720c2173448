import QtQuick
import Brellowind.Views

/** The context menu of the pill, a small window of its own. */
MenuWindow {
    id: root

    required property NotchRootModel model

    function popup(position: point): void {
        const area = Screen;
        x = Math.max(area.virtualX, Math.min(position.x, area.virtualX + area.width - width));
        y = Math.max(area.virtualY, Math.min(position.y, area.virtualY + area.height - height));
        show();
    }

    width: entries.width + 2 * entries.x
    height: entries.height + 2 * entries.y

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: Qt.rgba(0.11, 0.11, 0.12, 1)
        border.color: Qt.rgba(1, 1, 1, 0.12)
        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("Brellowind")
    }

    Column {
        id: entries

        x: 5
        y: 5

        PillMenuEntry {
            menu: root
            text: qsTr("Open Settings")
            onTriggered: root.model.openSettings()
        }

        PillMenuEntry {
            menu: root
            text: qsTr("Check for Updates…")
            onTriggered: root.model.checkForUpdates()
        }

        PillMenuEntry {
            menu: root
            text: qsTr("Quit Brellowind")
            onTriggered: root.model.quit()
        }
    }
}
