#include "notch/WindowInteractivity.h"

#include "platform/Services.h"

#include <utility>

namespace brellowind {

WindowInteractivity::WindowInteractivity(WindowFinder window)
    : window_(std::move(window)),
      nextTurn_(platform::services().mainLoop.onNextTurn([this] { apply(); })) {}

void WindowInteractivity::update(bool interactive) {
    interactive_ = interactive;
    nextTurn_->request();
}

void WindowInteractivity::apply() {
    if (auto* window = window_())
        window->setIgnoresMouseEvents(!interactive_);
}

} // namespace brellowind
