// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowSystem.h"
#include "support/FakeOverlay.h"
#include "support/FakePointer.h"
#include "support/FakeScreens.h"

#include <QWindow>

namespace brellowind::test {

/// A window system for windows that are offscreen. A window that pops up is shown, and no more.
class FakeWindowSystem final : public platform::WindowSystem {
public:
    /// Both outlive this.
    FakeWindowSystem(FakeScreens& screens, FakePointer& pointer)
        : screens_(screens), pointer_(pointer) {}

    std::unique_ptr<platform::Overlay> makeOverlay(QWindow&) override {
        auto made = std::make_unique<FakeOverlay>();
        overlay = made.get();
        return made;
    }

    platform::Screens& screens() override { return screens_; }
    platform::Pointer& pointer() override { return pointer_; }

    void popUp(const platform::Popup& popup) override {
        poppedUpAt = popup.at;
        popup.window.show();
    }

    void activate() override {}
    void adoptActivation(const std::string& /*token*/) override {}
    std::string sessionName() const override { return "offscreen"; }

    FakeOverlay* overlay = nullptr; ///< the last one; the window owns it
    Point poppedUpAt;               ///< position of the last popup

private:
    FakeScreens& screens_;
    FakePointer& pointer_;
};

} // namespace brellowind::test
