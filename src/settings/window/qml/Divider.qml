import QtQuick

/** A hairline between what stands above and below. */
Rectangle {
    implicitHeight: 1
    color: Style.hairline
}
