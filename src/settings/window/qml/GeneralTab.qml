// SPDX-License-Identifier: MIT

import QtQuick
import Brellowind.Settings

/** The General tab: updates, launch at login, feedback, quit. */
Item {
    id: root

    required property GeneralModel model

    implicitHeight: Math.max(Style.pageHeight, column.height + 2 * Style.margin)

    Column {
        id: column

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Style.margin }
        spacing: Style.inset

        UpdateCard {
            objectName: "updateCard"
            width: parent.width
            model: root.model
        }
        FormSection {
            width: parent.width

            SwitchRow {
                objectName: "launchAtLogin"
                text: "Launch at Login"
                on: root.model.launchAtLogin
                error: root.model.launchAtLoginError
                onClicked: root.model.setLaunchAtLogin(!on)
            }
        }
        FormSection {
            width: parent.width

            FormRow {
                label: "Support"
                visible: root.model.acceptsFeedback
                action: "Send Feedback"
                onPressed: root.model.sendFeedback()
            }
            Divider {
                visible: root.model.acceptsFeedback
                x: Style.inset
                width: parent.width - 2 * x
            }
            FormRow {
                label: "Quit"
                action: "Quit Brellowind"
                onPressed: root.model.quit()
            }
        }
    }
}
