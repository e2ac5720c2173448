// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Overlay.h"
#include "platform/Pointer.h"
#include "platform/Screens.h"

#include <memory>
#include <string>

class QWindow;

namespace brellowind::platform {

/// A popup window over an overlay, such as a menu. Both windows must exist while it is shown.
struct Popup {
    QWindow& window;     ///< hidden; the window system sets its flags and its mask
    QWindow& overlay;    ///< the window of an `Overlay`, visible
    Point at;            ///< relative to the overlay's top left corner, in points, y downward
    double cornerRadius; ///< of the content of `window`, in points
};

/// The window system of the session, and factory of all that depends on it. Main thread only.
class WindowSystem {
public:
    virtual ~WindowSystem() = default;

    /// Makes an overlay of `window`, which must have an alpha buffer and must not have been shown
    /// before. This object and `window` must outlive the overlay.
    virtual std::unique_ptr<Overlay> makeOverlay(QWindow& window) = 0;

    virtual Screens& screens() = 0;
    virtual Pointer& pointer() = 0;

    /// Shows a window with its top left corner at a point, or as near to it as the screen's edges
    /// allow. The popup grabs pointer and keyboard; it closes at once if the grab fails. A press
    /// outside it closes it and does nothing else.
    virtual void popUp(const Popup& popup) = 0;

    /// Raises the program's focusable windows, also one that is shown later in this turn of the
    /// main loop.
    virtual void activate() = 0;

    /// The next `activate` uses the activation token `token`, such as that of a second start. No
    /// effect on window systems without activation tokens.
    virtual void adoptActivation(const std::string& token) = 0;

    /// A name of the session, unique among the concurrent sessions of this user, in any characters.
    /// Independent of how the environment spells the session's address.
    virtual std::string sessionName() const = 0;
};

} // namespace brellowind::platform
