// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"
#include "platform/Overlay.h"

#include <functional>
#include <memory>

namespace brellowind {

/// Switches whether the window of a view receives mouse events. Main thread only.
class WindowInteractivity {
public:
    /// Returns the current window of the view; may be null.
    using WindowFinder = std::function<platform::Overlay*()>;

    WindowInteractivity(platform::MainLoop& mainLoop, WindowFinder window);
    WindowInteractivity(const WindowInteractivity&) = delete;
    WindowInteractivity& operator=(const WindowInteractivity&) = delete;

    /// Takes effect on the next turn of the main loop, if there is a window then. The last update
    /// before that turn counts.
    void update(bool interactive);

private:
    void apply();

    WindowFinder window_;
    bool interactive_ = false;
    std::unique_ptr<platform::NextTurn> nextTurn_;
};

} // namespace brellowind
