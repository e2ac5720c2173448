// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/x11/PlainX11Shape.h"
#include "platform/linux/x11/X11Input.h"
#include "platform/linux/x11/X11Pointer.h"

#include <utility>

namespace brellowind::platform {

/// A real X server, which reports the pointer everywhere.
class PlainX11Input final : public X11Input {
public:
    explicit PlainX11Input(MainLoop& mainLoop) : pointer_(mainLoop) {}

    Pointer& pointer() override { return pointer_; }

    std::unique_ptr<OverlayShape> shape(QWindow& window, std::function<void()> changed) override {
        return std::make_unique<PlainX11Shape>(window, std::move(changed));
    }

    void giveKeyboard(QWindow& /*menu*/) override {} // it can grab it

private:
    X11Pointer pointer_;
};

} // namespace brellowind::platform
