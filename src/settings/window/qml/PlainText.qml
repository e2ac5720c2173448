import QtQuick

/** Text that is shown as it is written. */
Text {
    textFormat: Text.PlainText
    color: Style.text
    font.pixelSize: Style.bodySize
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
