// SPDX-License-Identifier: MIT

#pragma once

#include "platform/macos/NativeOverlay.h"

#include <string>
#include <vector>

namespace brellowind::test {

/// The native windows that were made, and what the last one was told.
class FakeNativeOverlays {
public:
    platform::MakeNativeOverlay maker() {
        return [this](std::uintptr_t view) {
            views.push_back(view);
            calls.clear();
            ignoresMouseEvents = true;
            return std::make_unique<Native>(*this);
        };
    }

    std::vector<std::uintptr_t> views;
    std::vector<std::string> calls; ///< "frame" and "front", in order
    Rect frame;
    bool ignoresMouseEvents = true;

private:
    class Native final : public platform::NativeOverlay {
    public:
        explicit Native(FakeNativeOverlays& owner) : owner_(owner) {}

        void setFrame(const Rect& frame) override {
            owner_.frame = frame;
            owner_.calls.emplace_back("frame");
        }
        void orderFrontRegardless() override { owner_.calls.emplace_back("front"); }
        void setIgnoresMouseEvents(bool ignores) override { owner_.ignoresMouseEvents = ignores; }

    private:
        FakeNativeOverlays& owner_;
    };
};

} // namespace brellowind::test
