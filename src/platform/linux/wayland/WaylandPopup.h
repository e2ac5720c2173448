// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowSystem.h"
#include "platform/linux/wayland/WaylandOverlay.h"

#include <QObject>
#include <QWindow>

namespace brellowind::platform {

/// Shows a window as an xdg_popup of an overlay, with a grab. The compositor keeps it on the screen
/// and closes it on a press outside it.
class WaylandPopup final : public QObject {
public:
    explicit WaylandPopup(const WaylandCompositor& compositor) : compositor_(compositor) {}
    ~WaylandPopup() override;

    /// Closes a popup that is shown. `overlay`, that of the popup's overlay window, must be shown
    /// and exist while the popup is shown.
    void show(const Popup& popup, WaylandOverlay& overlay);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    static void configureSurface(void* self, xdg_surface* surface, std::uint32_t serial);
    static void configure(void* self, xdg_popup* popup, std::int32_t x, std::int32_t y,
                          std::int32_t width, std::int32_t height);
    static void finish(void* self, xdg_popup* popup);

    bool handleKey(QEvent* event);
    void release();

    const WaylandCompositor& compositor_;
    QWindow* window_ = nullptr; ///< while shown
    WaylandOverlay* overlay_ = nullptr;
    WaylandObject<xdg_surface> surface_;
    WaylandObject<xdg_popup> popup_;
};

} // namespace brellowind::platform
