#pragma once

#include "platform/MainLoop.h"
#include "platform/Overlay.h"

#include <functional>
#include <memory>

namespace brellowind {

/// Makes the window that an element stands in take mouse events or not. Main thread only.
class WindowInteractivity {
public:
    /// The window that the element stands in at the moment of the call, null when in none.
    using WindowFinder = std::function<platform::Overlay*()>;

    WindowInteractivity(platform::MainLoop& mainLoop, WindowFinder window);
    WindowInteractivity(const WindowInteractivity&) = delete;
    WindowInteractivity& operator=(const WindowInteractivity&) = delete;

    /// Takes effect on the next turn of the main loop, if there is a window by then. Of several
    /// updates before that turn the last one counts.
    void update(bool interactive);

private:
    void apply();

    WindowFinder window_;
    bool interactive_ = false;
    std::unique_ptr<platform::NextTurn> nextTurn_;
};

} // namespace brellowind
