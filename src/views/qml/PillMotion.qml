import QtQuick
import Brellowind.Views

/** Every spring of the pill's shape: fractions from 0 to 1 that may overshoot. */
QtObject {
    id: root

    required property NotchRootModel model
    required property real naturalLineWidth

    readonly property real hover: hoverSpring.value
    readonly property real unfold: unfoldSpring.value
    readonly property real expand: expandSpring.value
    readonly property real lineWidth: widthSpring.value
    readonly property real pulse: pulseSpring.value

    readonly property SpringValue hoverSpring: SpringValue {
        target: root.model.hovered ? 1 : 0
        spring: SpringValue.Hover
    }
    readonly property SpringValue unfoldSpring: SpringValue {
        target: root.model.isMinimized ? 0 : 1
        spring: SpringValue.Morph
    }
    readonly property SpringValue expandSpring: SpringValue {
        target: root.model.isArtExpanded ? 1 : 0
        spring: SpringValue.Morph
    }
    readonly property SpringValue widthSpring: SpringValue {
        // Even, so that the pill's edges fall on whole points about the middle.
        target: root.model.isMinimized ? Style.minimumContentWidth : 2 * Math.ceil(Math.max(Style.minimumContentWidth, root.naturalLineWidth) / 2)
        spring: SpringValue.Morph
        reach: 1
    }
    readonly property SpringValue pulseSpring: SpringValue {
        target: root.model.playPulse ? 1.06 : 1
        spring: root.model.playPulse ? SpringValue.PulseRise : SpringValue.PulseFall
    }
}
