// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Overlay.h"

#include <variant>
#include <vector>

namespace brellowind::test {

/// Records all calls in order, and the last outline.
class FakeOverlay final : public platform::Overlay {
public:
    struct SetFrame {
        Rect frame;

        bool operator==(const SetFrame&) const = default;
    };

    struct OrderFront {
        bool operator==(const OrderFront&) const = default;
    };

    struct SetIgnoresMouseEvents {
        bool ignores;

        bool operator==(const SetIgnoresMouseEvents&) const = default;
    };

    using Call = std::variant<SetFrame, OrderFront, SetIgnoresMouseEvents>;

    void setFrame(const Rect& frame) override { calls.emplace_back(SetFrame{frame}); }
    void orderFrontRegardless() override { calls.emplace_back(OrderFront{}); }
    void setIgnoresMouseEvents(bool ignores) override {
        calls.emplace_back(SetIgnoresMouseEvents{ignores});
    }

    void setOutline(const Path& newOutline, const std::vector<Rect>& newInputRects) override {
        outline = newOutline;
        inputRects = newInputRects;
        ++outlines;
    }

    std::vector<Call> calls;
    Path outline;
    std::vector<Rect> inputRects;
    int outlines = 0; ///< number of calls
};

} // namespace brellowind::test
