import QtQuick
import Brellowind.Views

/** The whole window: the pill hangs from its top edge, the rest is clear. */
Item {
    id: root

    required property NotchRootModel model

    Pill {
        objectName: "notch"
        anchors.fill: parent
        model: root.model
    }
}
