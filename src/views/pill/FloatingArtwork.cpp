// SPDX-License-Identifier: MIT

#include "views/pill/FloatingArtwork.h"

#include "views/NotchRootView.h"
#include "views/drawing/ArtworkImage.h"
#include "views/pill/ArtworkCaption.h"
#include "views/pill/PillContent.h"
#include "views/pill/PillMotion.h"
#include "views/pill/Style.h"
#include "views/scene/TapArea.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brellowind {
namespace {

constexpr double popScale = 0.18;
constexpr double popTilt = -6; ///< degrees

/// The input area of the thumbnail, a corner of the pill with the same margin as the indicator's.
constexpr QSizeF corner(style::sidePadding + style::thumbnailWidth + style::indicatorMargin,
                        style::topPadding + style::bandHeight + style::spacing);

/// The opacity of parts that do not tilt with the cover: 1 without a visible tilt, 0 from a tenth
/// of the tilt on.
double upright(double pop) {
    constexpr double unseen = 0.02;
    constexpr double plain = 0.1;
    return std::clamp((plain - std::abs(pop)) / (plain - unseen), 0.0, 1.0);
}

} // namespace

FloatingArtwork::FloatingArtwork(NotchRootView& view, const PillContent& content,
                                 FrameDriver& frames, Item* parent)
    : Item(parent), content_(content), frames_(frames), image_(new ArtworkImage(this)),
      area_(new TapArea(QAccessible::Button, this)) {
    area_->setName(tr("Show artwork"));
    area_->acceptHover();
    connect(area_, &TapArea::tapped, this, [&view] { view.tapCover(); });
    connect(area_, &TapArea::hoveredChanged, this,
            [&view](bool hovered) { view.hoverCover(hovered); });
    refresh();
}

void FloatingArtwork::refresh() {
    image_->setImage(content_.cover);
    area_->setEnabled(!content_.form.isArtExpanded);
    if (caption_)
        fillCaption();
}

void FloatingArtwork::layOut(const PillMotion& motion, double left) {
    const double expand = motion.expand.value();
    setPosition(
        {left + style::mix(style::sidePadding, style::panelSidePadding, expand),
         style::mix(style::topPadding,
                    style::panelTopPadding + style::bandHeight + style::panelSpacing, expand)});
    setSize({style::swell(style::thumbnailWidth, style::artworkSide, expand),
             style::swell(style::bandHeight, style::artworkSide, expand)});
    image_->setSize(size());
    image_->setRadius(
        std::max(0.0, style::mix(style::thumbnailRadius, style::artworkRadius, expand)));
    image_->setScale(1 + popScale * motion.thumbnail.value());
    image_->setRotation(popTilt * motion.thumbnail.value());
    area_->setPosition(QPointF(left, 0) - position());
    area_->setSize(corner);
    showCaption(std::clamp(2 * expand - 1, 0.0, 1.0) * upright(motion.thumbnail.value()));
}

/// The caption is laid out once for the full size and scaled with the artwork.
void FloatingArtwork::showCaption(double opacity) {
    if (opacity <= 0) {
        delete std::exchange(caption_, nullptr);
        return;
    }
    if (!caption_) {
        caption_ = new ArtworkCaption(frames_, this);
        caption_->setTransformOrigin(BottomLeft);
        fillCaption();
    }
    caption_->setOpacity(opacity);
    caption_->setScale(width() / style::artworkSide);
    caption_->setY(height() - caption_->height());
}

void FloatingArtwork::fillCaption() {
    caption_->setImage(content_.cover);
    caption_->setTexts(content_.artist, content_.title);
}

} // namespace brellowind
