// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/WaylandPopup.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace brellowind::platform {
namespace {

using Positioner = WaylandObject<xdg_positioner>;

/// Puts the top left corner at a point of the parent; the compositor may slide it onto the screen.
Positioner positioner(xdg_wm_base* shell, Point at, QSize size) {
    Positioner positioner(xdg_wm_base_create_positioner(shell));
    xdg_positioner_set_size(positioner.get(), size.width(), size.height());
    xdg_positioner_set_anchor_rect(positioner.get(), static_cast<int>(at.x), static_cast<int>(at.y),
                                   1, 1);
    xdg_positioner_set_anchor(positioner.get(), XDG_POSITIONER_ANCHOR_TOP_LEFT);
    xdg_positioner_set_gravity(positioner.get(), XDG_POSITIONER_GRAVITY_BOTTOM_RIGHT);
    xdg_positioner_set_constraint_adjustment(positioner.get(),
                                             XDG_POSITIONER_CONSTRAINT_ADJUSTMENT_SLIDE_X |
                                                 XDG_POSITIONER_CONSTRAINT_ADJUSTMENT_SLIDE_Y);
    return positioner;
}

} // namespace

WaylandPopup::~WaylandPopup() {
    if (window_)
        window_->close();
}

void WaylandPopup::show(const Popup& popup, WaylandOverlay& overlay) {
    if (window_)
        window_->close();
    window_ = &popup.window;
    overlay_ = &overlay;
    // With this hint Qt does not assign a role to the surface.
    window_->setFlags(Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint |
                      Qt::BypassWindowManagerHint);
    window_->setScreen(popup.overlay.screen());
    window_->create();
    surface_.reset(
        xdg_wm_base_get_xdg_surface(compositor_.shell(), WaylandCompositor::surface(*window_)));
    static constexpr xdg_surface_listener surfaceListener{configureSurface};
    xdg_surface_add_listener(surface_.get(), &surfaceListener, this);
    popup_.reset(xdg_surface_get_popup(
        surface_.get(), nullptr, positioner(compositor_.shell(), popup.at, window_->size()).get()));
    static constexpr xdg_popup_listener popupListener{configure, finish, nullptr};
    xdg_popup_add_listener(popup_.get(), &popupListener, this);
    overlay_->popupOpens(popup_.get(), [this] { window_->close(); });
    xdg_popup_grab(popup_.get(), compositor_.seat(), compositor_.serial());
    wl_surface_commit(WaylandCompositor::surface(*window_));
    QCoreApplication::instance()->installEventFilter(this);
}

void WaylandPopup::configureSurface(void* self, xdg_surface* surface, std::uint32_t serial) {
    xdg_surface_ack_configure(surface, serial);
    static_cast<WaylandPopup*>(self)->window_->show();
}

void WaylandPopup::configure(void* self, xdg_popup* /*popup*/, std::int32_t x, std::int32_t y,
                             std::int32_t /*width*/, std::int32_t /*height*/) {
    auto& popup = *static_cast<WaylandPopup*>(self);
    popup.window_->setPosition(popup.overlay_->window().position() + QPoint(x, y));
}

void WaylandPopup::finish(void* self, xdg_popup* /*popup*/) {
    static_cast<WaylandPopup*>(self)->window_->close();
}

bool WaylandPopup::eventFilter(QObject* receiver, QEvent* event) {
    switch (event->type()) {
    case QEvent::Close:
    case QEvent::Hide:
        if (receiver == window_)
            release();
        return false;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return receiver == &overlay_->window() && handleKey(event);
    default:
        return false;
    }
}

bool WaylandPopup::handleKey(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride)
        event->accept();
    else
        QCoreApplication::sendEvent(window_, event);
    return true;
}

/// Destroys the role objects before the surface.
void WaylandPopup::release() {
    QCoreApplication::instance()->removeEventFilter(this);
    window_ = nullptr;
    popup_.reset();
    surface_.reset();
    overlay_->popupClosed();
}

} // namespace brellowind::platform
