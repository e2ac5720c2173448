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

/// The corner of the pill that is pressed like the thumbnail in it, which reaches just as far as
/// the indicator in the other corner does.
constexpr QSizeF corner(style::sidePadding + style::thumbnailWidth + style::indicatorReach,
                        style::topPadding + style::bandHeight + style::spacing);

/// How much may be seen of what does not tilt with a cover that pops out by so much: all of it at
/// a tilt that nobody sees, nothing from a tenth of the whole tilt on.
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
    area_->mindHovering();
    connect(area_, &TapArea::tapped, this, [&view] { view.tapCover(); });
    connect(area_, &TapArea::hoveredChanged, this,
            [&view](bool hovered) { view.hoverCover(hovered); });
    follow();
}

void FloatingArtwork::follow() {
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

/// The caption is laid out once for the whole artwork, with which it grows.
void FloatingArtwork::showCaption(double opacity) {
    if (opacity <= 0) {
        delete std::exchange(caption_, nullptr);
        return;
    }
    if (!caption_) {
        caption_ = new ArtworkCaption(frames_, this);
        caption_->stackBefore(*area_);
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
