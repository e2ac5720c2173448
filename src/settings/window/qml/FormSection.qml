// SPDX-License-Identifier: MIT

import QtQuick

/** A group of rows of the form. */
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
