// SPDX-License-Identifier: MIT

import QtQuick

/** A horizontal hairline. */
Rectangle {
    implicitHeight: 1
    color: Style.hairline
}
