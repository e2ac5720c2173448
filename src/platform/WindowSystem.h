#pragma once

#include "platform/Overlay.h"
#include "platform/Pointer.h"
#include "platform/Screens.h"

#include <memory>
#include <string>

class QWindow;

namespace brellowind::platform {

/// A window that pops up over an overlay, such as a menu. Both windows outlive its being shown.
struct Popup {
    QWindow& window;     ///< hidden; its flags and its mask are the window system's from now on
    QWindow& overlay;    ///< the window of an `Overlay`, which is shown
    Point at;            ///< of the overlay, in points from its top left corner, y downward
    double cornerRadius; ///< of what `window` shows, in points
};

/// The window system of the session. It makes everything that knows that system. Main thread only.
class WindowSystem {
public:
    virtual ~WindowSystem() = default;

    /// Makes an overlay of `window`, which was never shown. This object and `window` outlive it.
    virtual std::unique_ptr<Overlay> makeOverlay(QWindow& window) = 0;

    virtual Screens& screens() = 0;
    virtual Pointer& pointer() = 0;

    /// Shows a window with its top left corner at a point, or as near to it as the screen's edges
    /// allow. Until it is closed every click and key is its own. A press beside it closes it and
    /// does nothing else. It closes at once if the system refuses it the pointer or the keyboard.
    virtual void popUp(const Popup& popup) = 0;

    /// Brings the program's windows that take the keyboard focus to the front, also one that is
    /// shown later in this turn of the main loop.
    virtual void activate() = 0;

    /// The next `activate` acts in the name of the user's action that `token` stands for, such as
    /// another start of the program. Without effect where windows need no such token.
    virtual void adoptActivation(const std::string& token) = 0;

    /// The name of the session, which no other session of this user has at the same time, in any
    /// characters. It is the same however the environment spells the session's address.
    virtual std::string sessionName() const = 0;
};

} // namespace brellowind::platform
