import QtQuick

/** The short way of small things to their new place. */
NumberAnimation {
    duration: Style.easeDuration
    easing.type: Easing.BezierSpline
    easing.bezierCurve: [0, 0, 0.58, 1, 1, 1]
}
