import QtQuick
import Brellowind.Settings

/** What the program is, and where to read more of it. */
Item {
    id: root

    required property AboutModel model

    implicitHeight: Style.pageHeight

    AboutCard {
        id: card

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Style.margin }
        model: root.model
    }
    Row {
        anchors { top: card.bottom; topMargin: Style.inset; horizontalCenter: parent.horizontalCenter }
        spacing: 12

        BorderedButton {
            objectName: "websiteButton"
            text: "Visit our website"
            prominent: true
            onClicked: root.model.openWebsite()
        }
        BorderedButton {
            text: "Follow on X"
            onClicked: root.model.openSocialProfile()
        }
    }
    Column {
        anchors { bottom: parent.bottom; bottomMargin: Style.margin; horizontalCenter: parent.horizontalCenter }
        spacing: 6

        PlainText {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(implicitWidth, root.width - 2 * Style.margin)
            text: root.model.legalNotice
            elide: Text.ElideRight
            color: Style.secondaryText
            font.pixelSize: Style.captionSize
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 6

            TextLink {
                text: "Privacy Policy"
                onClicked: root.model.openPrivacyPolicy()
            }
            PlainText {
                text: "·"
                color: Style.secondaryText
                font.pixelSize: Style.captionSize
                Accessible.ignored: true
            }
            TextLink {
                text: "Terms of Use"
                onClicked: root.model.openTerms()
            }
        }
    }
}
