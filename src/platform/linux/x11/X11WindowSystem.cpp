// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11WindowSystem.h"

#include "platform/linux/x11/X11Display.h"
#include "platform/linux/x11/X11Overlay.h"
#include "platform/qt/RaiseWindows.h"

#include <utility>

namespace brellowind::platform {

X11WindowSystem::X11WindowSystem(MainLoop& mainLoop, ScreenLock& screenLock,
                                 std::unique_ptr<X11Input> input)
    : mainLoop_(mainLoop), screenLock_(screenLock), screens_(mainLoop), input_(std::move(input)) {}

std::unique_ptr<Overlay> X11WindowSystem::makeOverlay(QWindow& window) {
    return std::make_unique<X11Overlay>(window, mainLoop_, screenLock_, *input_);
}

void X11WindowSystem::popUp(const Popup& popup) {
    input_->giveKeyboard(popup.window);
    popup_.show(popup);
}

void X11WindowSystem::activate() {
    raiseWindows();
}

std::string X11WindowSystem::sessionName() const {
    return x11DisplayName();
}

} // namespace brellowind::platform
