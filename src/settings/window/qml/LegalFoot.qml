import QtQuick
import Brellowind.Settings

/** The small print at the foot of the About tab. */
Column {
    id: root

    required property AboutModel model

    spacing: 6

    PlainText {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(implicitWidth, root.width)
        text: root.model.legalNotice
        color: Style.secondaryText
        font.pixelSize: Style.captionSize
        elide: Text.ElideRight
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
