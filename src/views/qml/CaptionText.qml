import QtQuick

/** One line of the caption, cut with an ellipsis where the artwork ends. */
Text {
    width: parent.width
    textFormat: Text.PlainText
    elide: Text.ElideRight
    maximumLineCount: 1
}
