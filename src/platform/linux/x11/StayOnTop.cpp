// SPDX-License-Identifier: MIT

#include "platform/linux/x11/StayOnTop.h"

#include <QRect>
#include <QScreen>
#include <algorithm>
#include <utility>

namespace brellowind::platform {
namespace {

/// The maximum depth of a window in its window manager's frame.
constexpr int frameDepth = 2;

/// The screen's geometry in pixels, with Qt's rounding.
QRect pixels(const QScreen& screen) {
    const QRect logical = screen.geometry();
    const QSizeF size = QSizeF(logical.size()) * screen.devicePixelRatio();
    return {logical.topLeft(), QSize(int(size.width()), int(size.height()))};
}

} // namespace

struct StayOnTop::Neighbour {
    xcb_window_t window;
    QRect frame;
    bool bypassesWindowManager;
};

StayOnTop::StayOnTop(const X11Connection& x11, const QWindow& window, MainLoop& mainLoop)
    : x11_(x11), qtWindow_(window), window_(static_cast<xcb_window_t>(window.winId())),
      managedMark_(x11.atom("WM_STATE")), mainLoop_(mainLoop),
      nextTurn_(mainLoop.onNextTurn([this] { check(); })),
      neighbours_(x11.root(), [this](const auto& event) {
          if (!pause_ && mayCover(event))
              nextTurn_->request();
      }) {}

void StayOnTop::raise() {
    const auto above = windowsAbove();
    putOnTop(window_);
    for (const auto window : above) {
        if (x11_.owns(window) && viewable(window))
            putOnTop(window);
    }
    x11_.flush();
}

void StayOnTop::putOnTop(xcb_window_t window) {
    constexpr std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(x11_.get(), window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
}

/// A change of this window that leaves it where it is in the stack covers nothing.
bool StayOnTop::mayCover(const xcb_generic_event_t& event) {
    switch (eventType(event)) {
    case XCB_MAP_NOTIFY:
    case XCB_UNMAP_NOTIFY: // it may have been a shield
    case XCB_CIRCULATE_NOTIFY:
    case XCB_REPARENT_NOTIFY:
        return true;
    case XCB_CONFIGURE_NOTIFY: {
        const auto& change = eventAs<xcb_configure_notify_event_t>(event);
        return change.window != window_ ||
               std::exchange(below_, change.above_sibling) != change.above_sibling;
    }
    default:
        return false;
    }
}

void StayOnTop::check() {
    if (!mustRaise())
        return;
    const auto now = RaiseBudget::TimePoint::clock::now();
    if (budget_.spend(now)) {
        raise();
        return;
    }
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(budget_.pauseEnd() - now);
    pause_ = mainLoop_.scheduleOnce(wait, [this] {
        pause_.reset();
        check();
    });
}

bool StayOnTop::mustRaise() const {
    const auto own = viewable(window_);
    if (!own)
        return false;
    bool covered = false;
    for (const auto window : windowsAbove()) {
        if (x11_.owns(window))
            continue;
        const auto neighbour = viewable(window);
        if (!neighbour || !neighbour->frame.intersects(own->frame))
            continue;
        if (isShield(*neighbour))
            return false;
        covered = true;
    }
    return covered;
}

std::vector<xcb_window_t> StayOnTop::windowsAbove() const {
    const auto tree = x11_.ask<xcb_query_tree, xcb_query_tree_reply>(x11_.root());
    if (!tree)
        return {};
    const auto* first = xcb_query_tree_children(tree.get());
    const auto* end = first + xcb_query_tree_children_length(tree.get());
    const auto* own = std::find(first, end, window_);
    if (own == end)
        return {};
    return {own + 1, end};
}

/// Returns nullopt for an invisible window.
std::optional<StayOnTop::Neighbour> StayOnTop::viewable(xcb_window_t window) const {
    const auto attributes =
        x11_.ask<xcb_get_window_attributes, xcb_get_window_attributes_reply>(window);
    if (!attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE ||
        attributes->_class != XCB_WINDOW_CLASS_INPUT_OUTPUT)
        return std::nullopt;
    const auto geometry = x11_.ask<xcb_get_geometry, xcb_get_geometry_reply>(window);
    if (!geometry)
        return std::nullopt;
    const int border = 2 * geometry->border_width;
    return Neighbour{
        window,
        {geometry->x, geometry->y, geometry->width + border, geometry->height + border},
        attributes->override_redirect != 0};
}

/// Frames of window managers are override-redirect, too, but contain a managed window.
bool StayOnTop::isShield(const Neighbour& neighbour) const {
    const auto* screen = qtWindow_.screen();
    return neighbour.bypassesWindowManager && screen && neighbour.frame.contains(pixels(*screen)) &&
           !isManaged(neighbour.window, frameDepth);
}

bool StayOnTop::isManaged(xcb_window_t window, int depth) const {
    const auto mark = x11_.ask<xcb_get_property, xcb_get_property_reply>(
        std::uint8_t(0), window, managedMark_, xcb_atom_t(XCB_GET_PROPERTY_TYPE_ANY),
        std::uint32_t(0), std::uint32_t(0));
    if (mark && mark->type != XCB_ATOM_NONE)
        return true;
    if (depth == 0)
        return false;
    const auto tree = x11_.ask<xcb_query_tree, xcb_query_tree_reply>(window);
    if (!tree)
        return false;
    const auto* first = xcb_query_tree_children(tree.get());
    return std::any_of(first, first + xcb_query_tree_children_length(tree.get()),
                       [&](xcb_window_t child) { return isManaged(child, depth - 1); });
}

} // namespace brellowind::platform
