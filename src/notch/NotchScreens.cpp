// SPDX-License-Identifier: MIT

#include "notch/NotchScreens.h"

#include <algorithm>

namespace brellowind {
namespace {

bool hasNotch(const platform::Screen& screen) {
    return 0 < screen.topSafeAreaInset;
}

double width(const std::optional<Rect>& area) {
    return area ? area->width : 0;
}

} // namespace

std::optional<platform::Screen> notchedScreen(std::span<const platform::Screen> screens) {
    const auto notched = std::ranges::find_if(screens, hasNotch);
    return notched != screens.end() ? std::optional(*notched) : std::nullopt;
}

double notchWidth(const platform::Screen& screen) {
    if (!hasNotch(screen))
        return 0;
    return screen.frame.width - width(screen.auxiliaryTopLeftArea) -
           width(screen.auxiliaryTopRightArea);
}

double menuBarHeight(const platform::Screen& screen) {
    return screen.frame.maxY() - screen.visibleFrame.maxY();
}

std::optional<platform::Screen> pillScreen(platform::Screens& screens) {
    const auto all = screens.screens();
    auto notched = notchedScreen(all);
    return notched ? notched : screens.main();
}

} // namespace brellowind
