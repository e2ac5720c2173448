// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/WaylandConnection.h"

namespace brellowind::test {

/// Prints the input events of this client's surfaces, one per line; positions in points of the
/// surface, buttons and keys as in linux/input-event-codes.h:
///     pointer enter X Y | pointer leave | press X Y BUTTON | tap X Y
///     keyboard enter | keyboard leave | key CODE
class InputLog {
public:
    explicit InputLog(const WaylandConnection& connection);
    InputLog(const InputLog&) = delete;
    InputLog& operator=(const InputLog&) = delete;

private:
    static wl_pointer_listener pointerListener();

    void listen(std::uint32_t capabilities);
    void moveTo(wl_fixed_t x, wl_fixed_t y);

    wl_seat* seat_;
    wl_pointer* pointer_ = nullptr;
    wl_keyboard* keyboard_ = nullptr;
    wl_touch* touch_ = nullptr;
    double x_ = 0;
    double y_ = 0;
};

} // namespace brellowind::test
