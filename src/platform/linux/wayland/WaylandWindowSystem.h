// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"
#include "platform/WindowSystem.h"
#include "platform/linux/screens/QtScreens.h"
#include "platform/linux/wayland/WaylandActivation.h"
#include "platform/linux/wayland/WaylandCompositor.h"
#include "platform/linux/wayland/WaylandPopup.h"
#include "platform/qt/WindowPointer.h"

namespace brellowind::platform {

class WaylandOverlay;

/// The Wayland compositor of the Qt application.
class WaylandWindowSystem final : public WindowSystem {
public:
    /// REQUIRES: a `QGuiApplication` on the platform "wayland", and a layer shell. `mainLoop` must
    /// outlive this object.
    explicit WaylandWindowSystem(MainLoop& mainLoop);

    std::unique_ptr<Overlay> makeOverlay(QWindow& window) override;
    Screens& screens() override { return screens_; }
    Pointer& pointer() override { return pointer_; }
    void popUp(const Popup& popup) override;
    void activate() override;
    void adoptActivation(const std::string& token) override { activation_.adopt(token); }
    std::string sessionName() const override;

    /// The connection's socket. Not owned by the caller.
    int socket() const { return wl_display_get_fd(compositor_.display()); }

private:
    MainLoop& mainLoop_;
    WaylandCompositor compositor_;
    QtScreens screens_;
    WindowPointer pointer_;
    WaylandPopup popup_{compositor_};
    WaylandActivation activation_;
    WaylandOverlay* overlay_ = nullptr; ///< the last one that was made
};

} // namespace brellowind::platform
