// SPDX-License-Identifier: MIT

import QtQuick

/** Plain text, without markup. */
Text {
    textFormat: Text.PlainText
    color: Style.text
    font.pixelSize: Style.bodySize
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
