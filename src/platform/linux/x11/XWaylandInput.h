// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"
#include "platform/linux/x11/X11Input.h"
#include "platform/linux/x11/XWaylandMenuFocus.h"
#include "platform/qt/WindowPointer.h"

#include <QDBusConnection>

namespace brellowind::platform {

/// Whether the X server of the existing Qt application is XWayland.
bool isXWayland();

/// XWayland on a compositor such as GNOME's. The pointer is known only over X windows; elsewhere
/// XWayland reports its last position.
class XWaylandInput final : public X11Input {
public:
    /// `mainLoop` must outlive this object. Without `sessionBus` hover ends later.
    XWaylandInput(MainLoop& mainLoop, const QDBusConnection& sessionBus);

    Pointer& pointer() override { return pointer_; }
    std::unique_ptr<OverlayShape> shape(QWindow& window, std::function<void()> changed) override;
    void giveKeyboard(QWindow& menu) override { menuFocus_.attach(menu); }

private:
    MainLoop& mainLoop_;
    QDBusConnection sessionBus_;
    WindowPointer pointer_;
    XWaylandMenuFocus menuFocus_;
};

} // namespace brellowind::platform
