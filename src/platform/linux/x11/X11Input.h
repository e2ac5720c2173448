// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Pointer.h"
#include "platform/linux/x11/OverlayShape.h"

#include <functional>
#include <memory>

class QWindow;

namespace brellowind::platform {

/// The differences between kinds of X servers: where the pointer is known, the input shape of the
/// overlay, and the keyboard focus of a menu.
class X11Input {
public:
    virtual ~X11Input() = default;

    virtual Pointer& pointer() = 0;

    /// Makes the shape of an overlay's native window, which must exist, be hidden, and outlive the
    /// shape. `changed` requests an update that is not caused by the overlay.
    virtual std::unique_ptr<OverlayShape> shape(QWindow& window, std::function<void()> changed) = 0;

    /// Call before `menu` is shown as a popup.
    virtual void giveKeyboard(QWindow& menu) = 0;
};

} // namespace brellowind::platform
