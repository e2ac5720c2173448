import QtQuick
import Brellowind.Settings

/** What is known of newer releases, and what can be done about it. */
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

        Item {
            width: parent.width
            height: 20

            Symbol {
                objectName: "stateIcon"
                width: 20
                height: 20
                visible: name !== ""
                name: root.model.cardIcon
                color: root.tint
            }
            ProgressIndicator {
                objectName: "stateProgress"
                x: 2
                y: 2
                visible: root.model.cardIcon === ""
                color: root.tint
            }
            PlainText {
                objectName: "stateTitle"
                anchors { left: parent.left; leftMargin: 30; verticalCenter: parent.verticalCenter }
                text: root.model.cardTitle
                color: "white"
                font.pixelSize: Style.titleSize
                font.bold: true
            }
        }
        Divider {
            width: parent.width
        }
        Item {
            width: parent.width
            height: button.height

            PlainText {
                objectName: "versionText"
                anchors { left: parent.left; right: button.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
                text: root.model.cardVersion
                color: Style.secondaryText
                elide: Text.ElideRight
            }
            SoftButton {
                id: button

                objectName: "updateButton"
                anchors.right: parent.right
                enabled: root.model.cardButtonEnabled
                text: root.model.cardButton
                onClicked: root.model.pressUpdateButton()
            }
        }
    }
}
