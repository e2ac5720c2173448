// SPDX-License-Identifier: MIT

#include "views/pill/PillMotion.h"

#include "views/pill/PillContent.h"
#include "views/pill/Style.h"

#include <algorithm>
#include <cmath>

namespace brellowind {

PillMotion::PillMotion(const PillContent& content, double widthOfLine) {
    setTargets(content, widthOfLine);
    for (auto* spring : all())
        spring->settle();
}

void PillMotion::setTargets(const PillContent& content, double widthOfLine) {
    const bool minimized = content.form.isMinimized;
    const bool expanded = content.form.isArtExpanded;
    hover.setTarget(content.form.hovered);
    unfold.setTarget(!minimized);
    expand.setTarget(expanded);
    // Even, so that the edges of the centred pill are on whole points.
    lineWidth.setTarget(minimized
                            ? style::minimumContentWidth
                            : 2 * std::ceil(std::max(style::minimumContentWidth, widthOfLine) / 2));
    if (content.form.playPulse)
        pulse.setTarget(pulseScale, springs::pulseRise);
    else
        pulse.setTarget(1, springs::pulseFall);
    thumbnail.setTarget(content.form.coverHovered && !expanded);
    indicator.setTarget(content.form.waveformHovered);
    grabber.setTarget(content.form.grabberHovered);
}

bool PillMotion::isMoving() {
    return std::ranges::any_of(all(), &SpringValue::isMoving);
}

std::optional<double> PillMotion::advance(double now) {
    std::optional<double> fastest;
    for (auto* spring : all())
        fastest = std::max(fastest, spring->advance(now)); // nullopt is less than any speed
    return fastest;
}

std::array<SpringValue*, 8> PillMotion::all() {
    return {&hover, &unfold, &expand, &lineWidth, &pulse, &thumbnail, &indicator, &grabber};
}

} // namespace brellowind
