// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/WaylandWindowSystem.h"

#include "platform/linux/wayland/WaylandDisplay.h"
#include "platform/linux/wayland/WaylandOverlay.h"

namespace brellowind::platform {

WaylandWindowSystem::WaylandWindowSystem(MainLoop& mainLoop)
    : mainLoop_(mainLoop), screens_(mainLoop), activation_(compositor_, mainLoop) {}

std::unique_ptr<Overlay> WaylandWindowSystem::makeOverlay(QWindow& window) {
    auto overlay = std::make_unique<WaylandOverlay>(window, compositor_, pointer_, mainLoop_);
    overlay_ = overlay.get();
    return overlay;
}

void WaylandWindowSystem::popUp(const Popup& popup) {
    if (overlay_->isShown())
        popup_.show(popup, *overlay_);
}

void WaylandWindowSystem::activate() {
    activation_.activate(overlay_->surface());
}

std::string WaylandWindowSystem::sessionName() const {
    return waylandSocketPath();
}

} // namespace brellowind::platform
