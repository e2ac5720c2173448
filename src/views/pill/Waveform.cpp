// SPDX-License-Identifier: MIT

#include "views/pill/Waveform.h"

#include "views/NotchRootView.h"
#include "views/drawing/Glyph.h"
#include "views/drawing/WaveformGlyph.h"
#include "views/pill/Fade.h"
#include "views/pill/PillContent.h"
#include "views/pill/PillMotion.h"
#include "views/pill/Style.h"
#include "views/scene/TapArea.h"

#include <algorithm>

namespace brellowind {
namespace {

constexpr double side = 16;
constexpr double buttonWidth = 10;
constexpr double buttonShift = -0.2; ///< from the middle

constexpr double playingOpacity = 0.9;
constexpr double pausedOpacity = 0.4;
constexpr double buttonOpacity = 0.8;

} // namespace

Waveform::Waveform(NotchRootView& view, const PillContent& content, Item* parent)
    : Item(parent), content_(content), waveform_(new WaveformGlyph(this)), button_(new Glyph(this)),
      area_(new TapArea(QAccessible::Button, this)) {
    setSize({side, side});
    waveform_->setSize(size());
    button_->setPosition({(side - buttonWidth) / 2 + buttonShift, 0});
    button_->setSize({buttonWidth, side});
    constexpr double margin = style::indicatorMargin;
    area_->setPosition({-margin, -margin});
    area_->setSize(size().grownBy(QMarginsF(margin, margin, margin, margin)));
    area_->acceptHover();
    connect(area_, &TapArea::tapped, this, [&view] { view.tapWaveform(); });
    connect(area_, &TapArea::hoveredChanged, this,
            [&view](bool hovered) { view.hoverWaveform(hovered); });
    refresh();
}

void Waveform::refresh() {
    waveform_->setActive(content_.isPlaying);
    button_->setKind(content_.isPlaying ? Glyph::PauseFill : Glyph::PlayFill);
    area_->setName(content_.isPlaying ? tr("Pause") : tr("Play"));
}

void Waveform::layOut(const PillMotion& motion) {
    const double swap = std::clamp(motion.indicator.value(), 0.0, 1.0);
    fade(*waveform_, (content_.isPlaying ? playingOpacity : pausedOpacity) * (1 - swap));
    fade(*button_, buttonOpacity * swap);
}

} // namespace brellowind
