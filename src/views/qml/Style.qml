pragma Singleton

import QtQuick

/** The colours and measures of the pill, in points. */
QtObject {
    readonly property color text: Qt.rgba(0.96, 0.96, 0.96, 1)

    readonly property real bandHeight: 20
    readonly property real spacing: 8
    readonly property real sidePadding: 20
    readonly property real topPadding: 5
    readonly property real bottomPadding: 12
    readonly property real minimizedBottomPadding: 8
    readonly property real minimumContentWidth: 232
    readonly property real thumbnailWidth: 19
    readonly property real thumbnailRadius: 4

    readonly property real panelWidth: 352
    readonly property real panelSidePadding: 16
    readonly property real panelTopPadding: 6
    readonly property real panelBottomPadding: 10
    readonly property real panelSpacing: 10
    readonly property real artworkSide: 320
    readonly property real artworkRadius: 18

    readonly property real grabberWidth: 36
    readonly property real grabberHeight: 5
    readonly property real grabberPadding: 2

    /** Between a and b by a fraction that may overshoot. */
    function mix(a: real, b: real, fraction: real): real {
        return a + (b - a) * fraction;
    }

    /** Between small and large. Below small it overshoots by a part of small, not of the way. */
    function swell(small: real, large: real, fraction: real): real {
        return fraction < 0 ? small * (1 + 2 * fraction) : mix(small, large, fraction);
    }
}
