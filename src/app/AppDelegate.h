#pragma once

#include "foundation/Observers.h"
#include "notch/NotchWindow.h"
#include "views/NotchView.h"

#include <functional>
#include <memory>
#include <optional>

namespace brellowind {

class NotchRootView;

/// Creates the one notch window when launching has finished, and keeps it over the notch whenever
/// the screens change.
class AppDelegate {
public:
    /// `windowSystem` outlives this; `openSettings` opens the settings window, or raises it.
    AppDelegate(platform::WindowSystem& windowSystem, std::function<void()> openSettings);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;
    ~AppDelegate();

    void applicationDidFinishLaunching();

    NotchRootView& rootView() { return *rootView_; }
    NotchView& window() { return notch_->content; } ///< there once launched

private:
    /// The window's two sides: what it draws, where it hangs.
    struct Notch {
        Notch(std::shared_ptr<NotchRootView> rootView, platform::WindowSystem& windowSystem);

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
