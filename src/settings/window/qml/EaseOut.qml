// SPDX-License-Identifier: MIT

import QtQuick

/** A short animation with an ease-out curve. */
NumberAnimation {
    duration: Style.easeDuration
    easing.type: Easing.BezierSpline
    easing.bezierCurve: [0, 0, 0.58, 1, 1, 1]
}
