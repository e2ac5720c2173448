import QtQuick

/** Dims what it is put in while the pointer is over it: bind the opacity there to `level`. */
HoverHandler {
    property real level: hovered ? Style.hoverOpacity : 1

    Behavior on level {
        EaseOut {}
    }
}
