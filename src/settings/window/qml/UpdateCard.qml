import QtQuick
import Brellowind.Settings

/** What is known of newer releases, in the colour of the state of things. */
Rectangle {
    id: root

    required property GeneralModel model
    readonly property color tint: Style.tint(model.cardColor)

    implicitHeight: rows.height + 2 * Style.inset
    radius: Style.cardRadius
    color: Qt.alpha(tint, model.cardTintOpacity)
    Accessible.role: Accessible.Grouping
    Accessible.name: model.cardTitle
    Accessible.description: model.cardVersion

    Column {
        id: rows

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Style.inset }
        spacing: 12

        UpdateState {
            width: parent.width
            model: root.model
            tint: root.tint
        }
        Divider {
            width: parent.width
        }
        UpdateAction {
            width: parent.width
            model: root.model
        }
    }
}
