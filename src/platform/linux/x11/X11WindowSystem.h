// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"
#include "platform/WindowSystem.h"
#include "platform/linux/ScreenLock.h"
#include "platform/linux/screens/QtScreens.h"
#include "platform/linux/x11/X11Input.h"
#include "platform/linux/x11/X11Popup.h"

namespace brellowind::platform {

/// The X server of the Qt application.
class X11WindowSystem final : public WindowSystem {
public:
    /// REQUIRES: a `QGuiApplication` on the platform "xcb". Both references must outlive this
    /// object.
    X11WindowSystem(MainLoop& mainLoop, ScreenLock& screenLock, std::unique_ptr<X11Input> input);

    std::unique_ptr<Overlay> makeOverlay(QWindow& window) override;
    Screens& screens() override { return screens_; }
    Pointer& pointer() override { return input_->pointer(); }
    void popUp(const Popup& popup) override;
    void activate() override;
    void adoptActivation(const std::string& /*token*/) override {}
    std::string sessionName() const override;

private:
    MainLoop& mainLoop_;
    ScreenLock& screenLock_;
    QtScreens screens_;
    std::unique_ptr<X11Input> input_;
    X11Popup popup_;
};

} // namespace brellowind::platform
