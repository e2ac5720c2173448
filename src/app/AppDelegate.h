#pragma once

#include "foundation/Observers.h"
#include "notch/NotchWindow.h"
#include "platform/linux/x11/X11OverlayWindow.h"
#include "views/motion/FrameDriver.h"
#include "views/window/NotchView.h"

#include <functional>
#include <memory>
#include <optional>

namespace brellowind {

class NotchRootView;

/// Creates the one notch window when launching has finished, and keeps it over the notch whenever
/// the screens change.
class AppDelegate {
public:
    /// `screenLock` outlives this; `openSettings` opens the settings window, or raises it.
    AppDelegate(platform::ScreenLock& screenLock, std::function<void()> openSettings);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;
    ~AppDelegate();

    void applicationDidFinishLaunching();

    NotchRootView& rootView() { return *rootView_; }
    NotchView& window() { return notch_->content; } ///< there once launched

private:
    /// The window's sides: when it moves, what it draws, what the system shows, where it hangs.
    struct Notch {
        Notch(NotchRootView& rootView, platform::ScreenLock& screenLock);

        FrameDriver frames;
        NotchView content;
        platform::X11OverlayWindow overlay;
        NotchWindow window;
    };

    void screenParametersChanged();

    platform::ScreenLock& screenLock_;
    std::shared_ptr<NotchRootView> rootView_;
    std::optional<Notch> notch_;
    Subscription screenChange_;
};

} // namespace brellowind
