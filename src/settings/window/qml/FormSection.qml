import QtQuick

/** Rows of the form that belong together. */
Rectangle {
    default property alias rows: column.data

    implicitHeight: column.height
    radius: Style.cardRadius
    color: Style.section

    Column {
        id: column

        width: parent.width
    }
}
