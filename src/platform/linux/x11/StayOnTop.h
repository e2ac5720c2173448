#pragma once

#include "platform/MainLoop.h"
#include "platform/linux/x11/RaiseBudget.h"
#include "platform/linux/x11/X11Connection.h"

#include <QWindow>
#include <memory>
#include <optional>
#include <vector>

namespace brellowind::platform {

/// Brings a window that bypasses the window manager back to the top when a window of another
/// program covers a part of it. It does not fight for ever (`RaiseBudget`), and never with a
/// shield: a window that covers the whole screen and bypasses the window manager as well, which is
/// how screen lockers keep everything else from sight.
class StayOnTop {
public:
    /// The native window of `window` exists and outlives this.
    StayOnTop(const X11Connection& x11, const QWindow& window, MainLoop& mainLoop);

    /// Above all but the windows of this program that are above it now, such as its menu.
    void raise();

private:
    struct Neighbour;

    bool handle(const xcb_generic_event_t& event);
    bool concernsChildOfRoot(const xcb_generic_event_t& event) const;
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
    xcb_atom_t managedMark_; ///< a property of the windows that a window manager manages
    MainLoop& mainLoop_;
    RaiseBudget budget_;
    std::unique_ptr<NextTurn> nextTurn_;
    std::unique_ptr<Timer> pause_; ///< there while the budget is spent
    X11EventObserver observer_;
};

} // namespace brellowind::platform
