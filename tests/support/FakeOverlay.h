#pragma once

#include "platform/Overlay.h"

#include <variant>
#include <vector>

namespace brellowind::test {

/// Remembers what it was told, in order, and the last outline apart from that.
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

    void setOutline(const Path& newOutline, const std::vector<Rect>& newReach) override {
        outline = newOutline;
        reach = newReach;
        ++outlines;
    }

    std::vector<Call> calls;
    Path outline;
    std::vector<Rect> reach;
    int outlines = 0; ///< how often it was told one
};

} // namespace brellowind::test
