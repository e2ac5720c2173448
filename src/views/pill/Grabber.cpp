#include "views/pill/Grabber.h"

#include "views/NotchRootView.h"
#include "views/drawing/Capsule.h"
#include "views/pill/Fade.h"
#include "views/pill/PillContent.h"
#include "views/pill/PillMotion.h"
#include "views/pill/Style.h"
#include "views/scene/TapArea.h"

#include <algorithm>

namespace brellowind {
namespace {

constexpr double reach = 12; ///< around it, within which it is pressed as well
constexpr double faint = 0.15;
constexpr double bright = 0.25;

} // namespace

Grabber::Grabber(NotchRootView& view, const PillContent& content, Item* parent)
    : Item(parent), content_(content), capsule_(new Capsule(this)),
      area_(new TapArea(QAccessible::Button, this)) {
    setSize({style::grabberWidth, style::grabberPadding + style::grabberHeight});
    capsule_->setPosition({0, style::grabberPadding});
    capsule_->setSize({style::grabberWidth, style::grabberHeight});
    area_->setPosition({-reach, -reach});
    area_->setSize(size().grownBy(QMarginsF(reach, reach, reach, reach)));
    area_->mindHovering();
    connect(area_, &TapArea::tapped, this, [&view] { view.tapGrabber(); });
    connect(area_, &TapArea::hoveredChanged, this,
            [&view](bool hovered) { view.hoverGrabber(hovered); });
    follow();
}

void Grabber::follow() {
    area_->setName(content_.form.isArtExpanded ? tr("Close artwork")
                   : content_.form.isMinimized ? tr("Show lyrics")
                                               : tr("Hide lyrics"));
}

void Grabber::layOut(const PillMotion& motion) {
    const double brightness = style::mix(faint, bright, motion.grabber.value());
    capsule_->setColor(QColor::fromRgbF(1, 1, 1, static_cast<float>(brightness)));
    fade(*this, std::max(motion.hover.value(), motion.expand.value()));
}

} // namespace brellowind
