// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11Pointer.h"

#include "platform/linux/screens/QtScreens.h"

#include <QEvent>
#include <QGuiApplication>
#include <utility>
#include <xcb/xinput.h>

namespace brellowind::platform {
namespace {

/// The extension's opcode, or -1. Before 2.1 there are no raw events during grabs.
int xinputNumber(const X11Connection& x11) {
    const auto* extension = xcb_get_extension_data(x11.get(), &xcb_input_id);
    if (!extension || !extension->present)
        return -1;
    const auto version = x11.ask<xcb_input_xi_query_version, xcb_input_xi_query_version_reply>(
        std::uint16_t(XCB_INPUT_MAJOR_VERSION), std::uint16_t(XCB_INPUT_MINOR_VERSION));
    const bool recent = version && std::pair(version->major_version, version->minor_version) >=
                                       std::pair<std::uint16_t, std::uint16_t>(2, 1);
    return recent ? extension->major_opcode : -1;
}

void selectRawMotion(const X11Connection& x11, bool selected) {
    const struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } selection{{XCB_INPUT_DEVICE_ALL_MASTER, 1},
                selected ? std::uint32_t(XCB_INPUT_XI_EVENT_MASK_RAW_MOTION) : 0};
    xcb_input_xi_select_events(x11.get(), x11.root(), 1, &selection.head);
    x11.flush();
}

} // namespace

X11Pointer::X11Pointer(MainLoop& mainLoop)
    : xinput_(xinputNumber(x11_)), nextTurn_(mainLoop.onNextTurn([this] { notifyMonitors(); })),
      observer_([this](const auto& event) { return handle(event); }),
      use_([this] { handleUse(); }) {
    if (xinput_ < 0)
        return;
    selectRawMotion(x11_, true);
}

X11Pointer::~X11Pointer() {
    if (xinput_ >= 0)
        selectRawMotion(x11_, false);
}

std::optional<Point> X11Pointer::location() {
    const auto position = query();
    if (!position || !position->same_screen)
        return std::nullopt;
    return ScreenArrangement::current().coordinates.desktopPoint(position->root_x,
                                                                 position->root_y);
}

bool X11Pointer::isButtonHeld() {
    constexpr auto buttons =
        XCB_KEY_BUT_MASK_BUTTON_1 | XCB_KEY_BUT_MASK_BUTTON_2 | XCB_KEY_BUT_MASK_BUTTON_3;
    const auto position = query();
    return position && (position->mask & buttons) != 0;
}

Subscription X11Pointer::addMonitor(Handler handler) {
    return xinput_ < 0 ? Subscription() : observers_->add(std::move(handler));
}

bool X11Pointer::handle(const xcb_generic_event_t& event) {
    const auto& generic = eventAs<xcb_ge_generic_event_t>(event);
    if (eventType(event) == XCB_GE_GENERIC && generic.extension == xinput_ &&
        generic.event_type == XCB_INPUT_RAW_MOTION)
        requestMovement();
    return false;
}

/// A press uses the pointer as well, without a movement.
void X11Pointer::handleUse() {
    if (moved_)
        return;
    const auto position = query();
    if (position && told_ != std::pair<int, int>(position->root_x, position->root_y))
        requestMovement();
}

void X11Pointer::requestMovement() {
    if (!std::exchange(moved_, true))
        qGuiApp->installEventFilter(this);
    nextTurn_->request();
}

/// Notifies the monitors of a movement before the window receives it. Installed during movements
/// only, since a filter sees every event of the program.
bool X11Pointer::eventFilter(QObject* watched, QEvent* event) {
    if (moved_ && (event->type() == QEvent::MouseMove || event->type() == QEvent::Enter))
        notifyMonitors();
    return QObject::eventFilter(watched, event);
}

void X11Pointer::notifyMonitors() {
    if (!std::exchange(moved_, false))
        return;
    qGuiApp->removeEventFilter(this);
    if (const auto position = query())
        told_.emplace(position->root_x, position->root_y);
    observers_->notify();
}

X11Answer<xcb_query_pointer_reply_t> X11Pointer::query() const {
    return x11_.ask<xcb_query_pointer, xcb_query_pointer_reply>(x11_.root());
}

} // namespace brellowind::platform
