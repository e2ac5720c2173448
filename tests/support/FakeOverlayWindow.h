#pragma once

#include "platform/OverlayWindow.h"

#include <variant>
#include <vector>

namespace brellowind::test {

/// Remembers what it was told, in order.
class FakeOverlayWindow final : public platform::OverlayWindow {
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

    std::vector<Call> calls;
};

} // namespace brellowind::test
