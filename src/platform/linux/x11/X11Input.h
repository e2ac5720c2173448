#pragma once

#include "platform/Pointer.h"
#include "platform/linux/x11/OverlayShape.h"

#include <functional>
#include <memory>

class QWindow;

namespace brellowind::platform {

/// What differs between kinds of X servers: where the pointer is known, how the overlay's window
/// takes it, and how a menu gets the keyboard.
class X11Input {
public:
    virtual ~X11Input() = default;

    virtual Pointer& pointer() = 0;

    /// Of an overlay's native window, which exists, is not shown yet and outlives the shape.
    /// `changed` is called when the shape has to be updated though the overlay is as it was.
    virtual std::unique_ptr<OverlayShape> shape(QWindow& window, std::function<void()> changed) = 0;

    /// `menu` is about to be shown as a popup.
    virtual void giveKeyboard(QWindow& menu) = 0;
};

} // namespace brellowind::platform
