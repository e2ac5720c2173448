// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"
#include "platform/linux/x11/RaiseBudget.h"
#include "platform/linux/x11/RootChildren.h"
#include "platform/linux/x11/X11Connection.h"

#include <QWindow>
#include <memory>
#include <optional>
#include <vector>

namespace brellowind::platform {

/// Raises an override-redirect window when a window of another program covers a part of it, limited
/// by `RaiseBudget`. Never raises it above a shield: an override-redirect window that covers the
/// whole screen, as screen lockers use.
class StayOnTop {
public:
    /// The native window of `window` must exist and outlive this object.
    StayOnTop(const X11Connection& x11, const QWindow& window, MainLoop& mainLoop);

    /// Raises it above all windows except this program's that are above it, such as the menu.
    void raise();

private:
    struct Neighbour;

    bool mayCover(const xcb_generic_event_t& event);
    void check();
    void putOnTop(xcb_window_t window);

    bool mustRaise() const;
    std::vector<xcb_window_t> windowsAbove() const;
    std::optional<Neighbour> viewable(xcb_window_t window) const;
    bool isShield(const Neighbour& neighbour) const;
    bool isManaged(xcb_window_t window, int depth) const;

    X11Connection x11_;
    const QWindow& qtWindow_;
    xcb_window_t window_;
    xcb_window_t below_ = XCB_WINDOW_NONE; ///< the window right below this one
    xcb_atom_t managedMark_;               ///< a property of managed windows
    MainLoop& mainLoop_;
    RaiseBudget budget_;
    std::unique_ptr<NextTurn> nextTurn_;
    std::unique_ptr<Timer> pause_; ///< while the budget is spent
    RootChildren neighbours_;
};

} // namespace brellowind::platform
