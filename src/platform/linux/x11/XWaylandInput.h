#pragma once

#include "platform/MainLoop.h"
#include "platform/linux/x11/X11Input.h"
#include "platform/linux/x11/XWaylandMenuFocus.h"
#include "platform/qt/WindowPointer.h"

#include <QDBusConnection>

namespace brellowind::platform {

/// Whether the X server of the Qt application, which exists, is XWayland: its windows are shown by
/// a Wayland compositor.
bool isXWayland();

/// XWayland below a compositor such as GNOME's. It knows the pointer only while that is over an X
/// window, and elsewhere tells the place where it was last.
class XWaylandInput final : public X11Input {
public:
    /// `mainLoop` outlives this. Without `sessionBus` hover ends later.
    XWaylandInput(MainLoop& mainLoop, const QDBusConnection& sessionBus);

    Pointer& pointer() override { return pointer_; }
    std::unique_ptr<OverlayShape> shape(QWindow& window, std::function<void()> changed) override;
    void giveKeyboard(QWindow& menu) override { menuFocus_.follow(menu); }

private:
    MainLoop& mainLoop_;
    QDBusConnection sessionBus_;
    WindowPointer pointer_;
    XWaylandMenuFocus menuFocus_;
};

} // namespace brellowind::platform
