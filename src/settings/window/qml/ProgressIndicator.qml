import QtQuick
import Brellowind.Settings

/** Goes round while something is under way. */
Spokes {
    id: root

    Timer {
        interval: 100
        repeat: true
        running: root.visible
        onTriggered: root.step += 1
    }
}
