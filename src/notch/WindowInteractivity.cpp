// SPDX-License-Identifier: MIT

#include "notch/WindowInteractivity.h"

#include <utility>

namespace brellowind {

WindowInteractivity::WindowInteractivity(platform::MainLoop& mainLoop, WindowFinder window)
    : window_(std::move(window)), nextTurn_(mainLoop.onNextTurn([this] { apply(); })) {}

void WindowInteractivity::update(bool interactive) {
    interactive_ = interactive;
    nextTurn_->request();
}

void WindowInteractivity::apply() {
    if (auto* window = window_())
        window->setIgnoresMouseEvents(!interactive_);
}

} // namespace brellowind
