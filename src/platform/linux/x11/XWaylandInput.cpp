// SPDX-License-Identifier: MIT

#include "platform/linux/x11/XWaylandInput.h"

#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/XWaylandHover.h"
#include "platform/linux/x11/XWaylandShape.h"
#include "platform/qt/OutlineRegion.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <string_view>

namespace brellowind::platform {
namespace {

class XWaylandOverlayShape final : public OverlayShape {
public:
    XWaylandOverlayShape(QWindow& window, WindowPointer& pointer, MainLoop& mainLoop,
                         const QDBusConnection& sessionBus)
        : shape_(window), hover_(window, pointer, mainLoop, sessionBus) {}

    void update(const Path& outline, const std::vector<Rect>& inputRects, double scale,
                bool ignoresMouseEvents) override {
        const QRegion region = outlineRegion(outline, scale);
        shape_.update(ignoresMouseEvents ? region : region | rectsRegion(inputRects, scale));
    }

    void present(const std::function<void()>& flush) override { shape_.present(flush); }

private:
    XWaylandShape shape_;
    XWaylandHover hover_;
};

} // namespace

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
    return std::make_unique<XWaylandOverlayShape>(window, pointer_, mainLoop_, sessionBus_);
}

} // namespace brellowind::platform
