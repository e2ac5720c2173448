#pragma once

#include "foundation/Observers.h"
#include "notch/NotchWindow.h"
#include "platform/WindowSystem.h"
#include "views/NotchRootView.h"
#include "views/motion/FrameDriver.h"
#include "views/window/NotchView.h"

#include <memory>
#include <optional>

namespace brellowind {

/// Creates the one notch window after launching, and keeps it over the notch.
class AppDelegate {
public:
    /// `windowSystem` must outlive this. What the window is to show is complete but for the window
    /// itself, which is filled in here.
    AppDelegate(platform::WindowSystem& windowSystem, NotchRootView::Environment content);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    void applicationDidFinishLaunching();

    NotchRootView& rootView() { return *rootView_; }
    NotchView& window() { return notch_->content; } ///< there once launched

private:
    /// The window's sides: when it moves, what it draws, where it hangs.
    struct Notch {
        Notch(NotchRootView& rootView, platform::WindowSystem& windowSystem);

        FrameDriver frames;
        NotchView content;
        NotchWindow window;
    };

    void screenParametersChanged();

    platform::WindowSystem& windowSystem_;
    std::shared_ptr<NotchRootView> rootView_;
    std::optional<Notch> notch_;
    Subscription screenChange_;
};

} // namespace brellowind
