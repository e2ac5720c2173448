// SPDX-License-Identifier: MIT

#include "platform/linux/screens/ScreenCoordinates.h"

#include <algorithm>
#include <utility>

namespace brellowind::platform {
namespace {

double overlap(const Rect& a, const Rect& b) {
    const double width = std::min(a.maxX(), b.maxX()) - std::max(a.minX(), b.minX());
    const double height = std::min(a.maxY(), b.maxY()) - std::max(a.minY(), b.minY());
    return std::max(width, 0.0) * std::max(height, 0.0);
}

double squaredDistance(const Rect& rect, Point point) {
    const double x = point.x - std::clamp(point.x, rect.minX(), rect.maxX());
    const double y = point.y - std::clamp(point.y, rect.minY(), rect.maxY());
    return x * x + y * y;
}

} // namespace

ScreenCoordinates::ScreenCoordinates(std::vector<ScreenPlacement> screens, std::size_t primary)
    : screens_(std::move(screens)),
      primary_(primary < screens_.size() ? screens_[primary].logical : Rect{}) {}

Rect ScreenCoordinates::desktopRect(const Rect& logical) const {
    return {logical.x - primary_.x, primary_.maxY() - logical.maxY(), logical.width,
            logical.height};
}

std::optional<Point> ScreenCoordinates::desktopPoint(int nativeX, int nativeY) const {
    const Point middle{nativeX + 0.5, nativeY + 0.5};
    const auto screen =
        std::ranges::min_element(screens_, {}, [middle](const ScreenPlacement& candidate) {
            return squaredDistance(candidate.native, middle);
        });
    if (screen == screens_.end())
        return std::nullopt;
    const Point logical{screen->logical.x + (middle.x - screen->native.x) / screen->scale,
                        screen->logical.y + (middle.y - screen->native.y) / screen->scale};
    return Point{logical.x - primary_.x, primary_.maxY() - logical.y};
}

std::optional<ScreenCoordinates::LogicalRect>
ScreenCoordinates::logicalRect(const Rect& desktop) const {
    if (screens_.empty())
        return std::nullopt;
    const Rect logical{desktop.x + primary_.x, primary_.maxY() - desktop.maxY(), desktop.width,
                       desktop.height};
    const auto byOverlap = [&logical](const ScreenPlacement& candidate) {
        return overlap(candidate.logical, logical);
    };
    auto screen = std::ranges::max_element(screens_, {}, byOverlap);
    if (byOverlap(*screen) == 0) {
        const Point middle{logical.midX(), logical.midY()};
        screen = std::ranges::min_element(screens_, {}, [middle](const ScreenPlacement& candidate) {
            return squaredDistance(candidate.logical, middle);
        });
    }
    return LogicalRect{static_cast<std::size_t>(screen - screens_.begin()), logical};
}

} // namespace brellowind::platform
