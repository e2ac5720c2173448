// SPDX-License-Identifier: MIT

pragma Singleton

import QtQuick

/** The colours and dimensions of the settings window, in points. */
QtObject {
    readonly property color window: "#0f0f11"
    readonly property color text: Qt.rgba(0.96, 0.96, 0.96, 1)
    readonly property color secondaryText: Qt.rgba(0.96, 0.96, 0.96, 0.62)
    readonly property color section: Qt.rgba(1, 1, 1, 0.055)
    readonly property color card: Qt.rgba(0.96, 0.96, 0.96, 0.02)
    readonly property color hairline: Qt.rgba(1, 1, 1, 0.09)
    readonly property color focus: Qt.rgba(0.96, 0.96, 0.96, 0.9)

    readonly property color yellow: "#ffd60a"
    readonly property color teal: "#40c8e0"
    readonly property color red: "#ff453a"
    readonly property color green: "#32d74b"

    readonly property color button: Qt.rgba(1, 1, 1, 0.09)
    readonly property color buttonPressed: Qt.rgba(1, 1, 1, 0.16)
    readonly property color buttonText: "white"
    readonly property color prominentText: "#0f0f11"
    readonly property color prominentPressed: Qt.rgba(0.96, 0.96, 0.96, 0.8)

    readonly property real hoverOpacity: 0.7
    readonly property int easeDuration: 120

    /** The size of text: 1 for a desktop font of up to 12 points, proportional to a larger one. */
    readonly property real textScale: {
        const points = Application.font.pointSize;
        return points <= 12 ? 1 : Math.min(points / 11, 2);
    }

    readonly property int windowWidth: scaled(460)
    readonly property int pageHeight: scaled(360)
    readonly property int margin: 20
    readonly property int rowHeight: scaled(48)
    readonly property int inset: 16
    readonly property int cardRadius: 12
    readonly property int buttonRadius: 8

    readonly property int nameSize: scaled(20)
    readonly property int titleSize: scaled(16)
    readonly property int buttonSize: scaled(14)
    readonly property int bodySize: scaled(13)
    readonly property int calloutSize: scaled(12)
    readonly property int captionSize: scaled(11)

    function scaled(length: int): int {
        return Math.round(length * textScale);
    }

    function tint(color: int): color {
        return [yellow, teal, red, green][color];
    }
}
