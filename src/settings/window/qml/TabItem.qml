// SPDX-License-Identifier: MIT

import QtQuick
import Brellowind.Settings

/** A tab: symbol and name. Only the selected tab is in the focus chain. */
Pressable {
    id: root

    required property string symbol
    required property bool selected
    readonly property color ink: selected || hovered ? Style.text : Style.secondaryText

    width: Style.scaled(76)
    height: Style.scaled(52)
    focus: selected
    activeFocusOnTab: selected
    ringOutset: 0
    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: selected
    onActiveFocusChanged: {
        if (activeFocus && !selected)
            clicked(); // an assistive program has set the focus
    }

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: root.down ? Style.buttonPressed : Style.button
        visible: root.selected || root.down
    }
    Symbol {
        x: (parent.width - width) / 2
        y: 7
        width: 20
        height: 20
        name: root.symbol
        color: root.ink
    }
    Text {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 6 }
        text: root.text
        textFormat: Text.PlainText
        color: root.ink
        font.pixelSize: Style.captionSize
    }
}
