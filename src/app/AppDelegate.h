// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Observers.h"
#include "notch/NotchWindow.h"
#include "platform/WindowSystem.h"
#include "views/NotchRootView.h"
#include "views/motion/FrameDriver.h"
#include "views/window/PillWindow.h"

#include <memory>
#include <optional>

namespace brellowind {

/// Creates the notch window after launch and keeps it over the notch.
class AppDelegate {
public:
    /// `windowSystem` must outlive this object. `content` is complete but for the window, which is
    /// set here.
    AppDelegate(platform::WindowSystem& windowSystem, NotchRootView::Environment content);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    void applicationDidFinishLaunching();

    NotchRootView& rootView() { return *rootView_; }
    PillWindow& window() { return notch_->content; } ///< only after launch

private:
    /// The window: its frame clock, its content and its placement.
    struct Notch {
        Notch(NotchRootView& rootView, platform::WindowSystem& windowSystem);

        FrameDriver frames;
        PillWindow content;
        NotchWindow window;
    };

    void screenParametersChanged();

    platform::WindowSystem& windowSystem_;
    std::shared_ptr<NotchRootView> rootView_;
    std::optional<Notch> notch_;
    Subscription screenChange_;
};

} // namespace brellowind
