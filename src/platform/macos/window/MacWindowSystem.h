// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowSystem.h"
#include "platform/macos/NativeOverlay.h"
#include "platform/macos/window/MacOverlay.h"
#include "platform/macos/window/MacPopup.h"

#include <QPointer>
#include <functional>

namespace brellowind::platform {

/// The windows that Qt shows on macOS.
class MacWindowSystem final : public WindowSystem {
public:
    /// What is AppKit's. `screens` and `pointer` outlive the window system.
    struct Native {
        Screens& screens;
        Pointer& pointer;
        MakeNativeOverlay makeOverlay;
        std::function<void()> activateProgram;
    };

    explicit MacWindowSystem(Native native);

    std::unique_ptr<Overlay> makeOverlay(QWindow& window) override;
    Screens& screens() override { return native_.screens; }
    Pointer& pointer() override { return native_.pointer; }
    void popUp(const Popup& popup) override;
    void activate() override;
    void adoptActivation(const std::string& /*token*/) override {}

    /// A user has one session with windows.
    std::string sessionName() const override { return "Aqua"; }

private:
    Native native_;
    MacPopup popup_;
    QPointer<MacOverlay> overlay_; ///< the one that was made last
};

} // namespace brellowind::platform
