#pragma once

#include "platform/WindowSystem.h"
#include "platform/linux/wayland/WaylandOverlay.h"

#include <QObject>
#include <QWindow>

namespace brellowind::platform {

/// Shows a window as a popup of an overlay. The compositor keeps it on the screen, gives it
/// the pointer, and closes it on a press anywhere else.
class WaylandPopup final : public QObject {
public:
    explicit WaylandPopup(const WaylandCompositor& compositor) : compositor_(compositor) {}
    ~WaylandPopup() override;

    /// Closes the one that is shown. `overlay` is that of the popup's overlay window, is shown, and
    /// outlives the popup's being shown.
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
    QWindow* window_ = nullptr; ///< while it is shown
    WaylandOverlay* overlay_ = nullptr;
    WaylandObject<xdg_surface> surface_;
    WaylandObject<xdg_popup> popup_;
};

} // namespace brellowind::platform
