#include "views/pill/PillMotion.h"

#include "views/NotchRootModel.h"
#include "views/pill/Style.h"

#include <algorithm>
#include <cmath>

namespace brellowind {
namespace {

constexpr double pulseScale = 1.06;

} // namespace

PillMotion::PillMotion(const NotchRootModel& model, double naturalLineWidth) {
    follow(model, naturalLineWidth);
    forEach(*this, [](SpringValue& spring) { spring.settle(); });
}

void PillMotion::follow(const NotchRootModel& model, double naturalLineWidth) {
    const bool minimized = model.isMinimized();
    const bool expanded = model.isArtExpanded();
    hover.setTarget(model.hovered());
    unfold.setTarget(!minimized);
    expand.setTarget(expanded);
    // Even, so that the pill's edges fall on whole points about the middle.
    lineWidth.setTarget(
        minimized ? style::minimumContentWidth
                  : 2 * std::ceil(std::max(style::minimumContentWidth, naturalLineWidth) / 2));
    if (model.playPulse())
        pulse.setTarget(pulseScale, springs::pulseRise);
    else
        pulse.setTarget(1, springs::pulseFall);
    thumbnail.setTarget(model.coverHovered() && !expanded);
    indicator.setTarget(model.waveformHovered());
    grabber.setTarget(model.grabberHovered());
}

bool PillMotion::isMoving() const {
    bool moving = false;
    forEach(*this, [&](const SpringValue& spring) { moving = moving || spring.isMoving(); });
    return moving;
}

std::optional<double> PillMotion::advance(double now) {
    std::optional<double> fastest;
    forEach(*this, [&](SpringValue& spring) {
        fastest = std::max(fastest, spring.advance(now)); // resting is less than any speed
    });
    return fastest;
}

template <typename Self, typename Do>
void PillMotion::forEach(Self& self, const Do& doIt) {
    for (auto* spring : {&self.hover, &self.unfold, &self.expand, &self.lineWidth, &self.pulse,
                         &self.thumbnail, &self.indicator, &self.grabber})
        doIt(*spring);
}

} // namespace brellowind
