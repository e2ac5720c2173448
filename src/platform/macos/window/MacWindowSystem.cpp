// SPDX-License-Identifier: MIT

#include "platform/macos/window/MacWindowSystem.h"

#include "platform/qt/RaiseWindows.h"

#include <utility>

namespace brellowind::platform {

MacWindowSystem::MacWindowSystem(Native native)
    : native_(std::move(native)), popup_(native_.pointer) {}

std::unique_ptr<Overlay> MacWindowSystem::makeOverlay(QWindow& window) {
    auto overlay = std::make_unique<MacOverlay>(window, native_.pointer, native_.makeOverlay);
    overlay_ = overlay.get();
    return overlay;
}

void MacWindowSystem::popUp(const Popup& popup) {
    popup_.show(popup, [overlay = overlay_] {
        if (overlay)
            overlay->setCovered(false);
    });
    overlay_->setCovered(true);
}

void MacWindowSystem::activate() {
    native_.activateProgram();
    raiseWindows();
}

} // namespace brellowind::platform
