// SPDX-License-Identifier: MIT

import QtQuick
import Brellowind.Settings

/** An animated spinner. */
Spokes {
    id: root

    Timer {
        interval: 100
        repeat: true
        running: root.visible
        onTriggered: root.step += 1
    }
}
