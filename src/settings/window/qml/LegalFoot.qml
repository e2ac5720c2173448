// SPDX-License-Identifier: MIT

import QtQuick
import Brellowind.Settings

/** The legal notice at the bottom of the About tab. */
Column {
    id: root

    required property AboutModel model

    spacing: 6

    PlainText {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(implicitWidth, root.width)
        text: root.model.legalNotice
        visible: text !== ""
        color: Style.secondaryText
        font.pixelSize: Style.captionSize
        elide: Text.ElideRight
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 6

        TextLink {
            id: privacyPolicy

            text: "Privacy Policy"
            visible: root.model.privacyPolicyURL !== ""
            onClicked: root.model.open(root.model.privacyPolicyURL)
        }
        PlainText {
            text: "·"
            visible: privacyPolicy.visible && terms.visible
            color: Style.secondaryText
            font.pixelSize: Style.captionSize
            Accessible.ignored: true
        }
        TextLink {
            id: terms

            text: "Terms of Use"
            visible: root.model.termsURL !== ""
            onClicked: root.model.open(root.model.termsURL)
        }
    }
}
