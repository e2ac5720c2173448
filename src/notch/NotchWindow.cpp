// SPDX-License-Identifier: MIT

#include "notch/NotchWindow.h"

#include "notch/NotchMetrics.h"
#include "notch/NotchScreens.h"

#include <algorithm>

namespace brellowind {
namespace {

constexpr double maximumWidth = 640;

} // namespace

Rect notchWindowFrame(const Rect& screenFrame) {
    const double width = std::min(screenFrame.width, maximumWidth);
    const double height = NotchMetrics::windowHeight;
    return {screenFrame.midX() - width / 2, screenFrame.maxY() - height, width, height};
}

NotchWindow::NotchWindow(platform::Overlay& window, platform::Screens& screens)
    : window_(window), screens_(screens) {
    window_.setIgnoresMouseEvents(true);
}

void NotchWindow::show() {
    repositionToNotch();
    window_.orderFrontRegardless();
}

void NotchWindow::repositionToNotch() {
    if (const auto screen = pillScreen(screens_))
        window_.setFrame(notchWindowFrame(screen->frame));
}

} // namespace brellowind
