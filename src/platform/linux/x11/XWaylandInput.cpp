// SPDX-License-Identifier: MIT

#include "platform/linux/x11/XWaylandInput.h"

#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/XWaylandShape.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <string_view>

namespace brellowind::platform {

bool isXWayland() {
    constexpr std::string_view extension = "XWAYLAND";
    const auto answer = X11Connection().ask<xcb_query_extension, xcb_query_extension_reply>(
        static_cast<std::uint16_t>(extension.size()), extension.data());
    // Older versions without the extension are recognised by the names of their screens.
    return (answer && answer->present) ||
           std::ranges::any_of(QGuiApplication::screens(), [](const QScreen* screen) {
               return screen->name().startsWith(QLatin1String("XWAYLAND"));
           });
}

XWaylandInput::XWaylandInput(MainLoop& mainLoop, const QDBusConnection& sessionBus)
    : mainLoop_(mainLoop), sessionBus_(sessionBus) {}

std::unique_ptr<OverlayShape> XWaylandInput::shape(QWindow& window,
                                                   std::function<void()> /*changed*/) {
    return std::make_unique<XWaylandShape>(window, pointer_, mainLoop_, sessionBus_);
}

} // namespace brellowind::platform
