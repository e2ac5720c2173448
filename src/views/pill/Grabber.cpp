// SPDX-License-Identifier: MIT

#include "views/pill/Grabber.h"

#include "views/NotchRootView.h"
#include "views/pill/Fade.h"
#include "views/pill/PillContent.h"
#include "views/pill/PillMotion.h"
#include "views/pill/Style.h"
#include "views/scene/TapArea.h"

#include <QPainter>
#include <algorithm>
#include <utility>

namespace brellowind {
namespace {

constexpr double margin = 12; ///< of the input area around the handle
constexpr double faint = 0.15;
constexpr double bright = 0.25;

} // namespace

Grabber::Grabber(NotchRootView& view, const PillContent& content, Item* parent)
    : PainterItem(parent), content_(content), area_(new TapArea(QAccessible::Button, this)) {
    setSize({style::grabberWidth, style::grabberPadding + style::grabberHeight});
    area_->setPosition({-margin, -margin});
    area_->setSize(size().grownBy(QMarginsF(margin, margin, margin, margin)));
    area_->acceptHover();
    connect(area_, &TapArea::tapped, this, [&view] { view.tapGrabber(); });
    connect(area_, &TapArea::hoveredChanged, this,
            [&view](bool hovered) { view.hoverGrabber(hovered); });
    refresh();
}

void Grabber::refresh() {
    area_->setName(content_.form.isArtExpanded ? tr("Close artwork")
                   : content_.form.isMinimized ? tr("Show lyrics")
                                               : tr("Hide lyrics"));
}

void Grabber::layOut(const PillMotion& motion) {
    const double brightness = style::mix(faint, bright, motion.grabber.value());
    const auto color = QColor::fromRgbF(1, 1, 1, static_cast<float>(brightness));
    if (std::exchange(color_, color) != color)
        update();
    fade(*this, std::max(motion.hover.value(), motion.expand.value()));
}

void Grabber::paint(QPainter& painter) {
    constexpr double radius = style::grabberHeight / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(color_);
    painter.drawRoundedRect(boundingRect().adjusted(0, style::grabberPadding, 0, 0), radius,
                            radius);
}

} // namespace brellowind
