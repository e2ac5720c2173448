import QtQuick
import Brellowind.Views

/** The playing indicator, which is the play/pause button as well. */
Item {
    id: root

    required property NotchRootModel model

    width: 16
    height: 16

    SpringValue {
        id: swap

        target: root.model.waveformHovered ? 1 : 0
        spring: SpringValue.Hover
    }

    WaveformGlyph {
        anchors.fill: parent
        active: root.model.isPlaying
        opacity: (root.model.isPlaying ? 0.9 : 0.4) * Math.min(1, Math.max(0, 1 - swap.value))
        visible: opacity > 0
    }

    Glyph {
        x: (parent.width - width) / 2 - 0.2
        width: 10
        height: 16
        kind: root.model.isPlaying ? Glyph.PauseFill : Glyph.PlayFill
        opacity: 0.8 * Math.min(1, Math.max(0, swap.value))
        visible: opacity > 0
    }

    MouseArea {
        anchors.fill: parent
        anchors.margins: -10
        hoverEnabled: true
        Accessible.role: Accessible.Button
        Accessible.name: root.model.isPlaying ? qsTr("Pause") : qsTr("Play")
        Accessible.onPressAction: root.model.tapWaveform()

        onContainsMouseChanged: root.model.hoverWaveform(containsMouse)
        onClicked: root.model.tapWaveform()
    }
}
