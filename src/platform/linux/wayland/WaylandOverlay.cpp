// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/WaylandOverlay.h"

#include "platform/linux/screens/QtScreens.h"
#include "platform/qt/OutlineRegion.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPlatformSurfaceEvent>
#include <chrono>
#include <utility>

namespace brellowind::platform {
namespace {

constexpr int lowHeight = 128; ///< points; without the artwork panel
constexpr int glow = 48;       ///< points below the outline for a shadow

/// Delay before a surface that was closed by the compositor is shown again.
constexpr std::chrono::seconds retryDelay{1};

/// Time for a window opened from the menu to take the focus itself.
constexpr std::chrono::milliseconds focusDelay{100};

} // namespace

WaylandOverlay::WaylandOverlay(QWindow& window, const WaylandCompositor& compositor,
                               WindowPointer& pointer, MainLoop& mainLoop)
    : window_(window), compositor_(compositor), pointer_(pointer), mainLoop_(mainLoop),
      resize_(mainLoop.onNextTurn([this] { resize(); })) {
    // With this hint Qt does not assign a role to the surface.
    window_.setFlags(Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint |
                     Qt::BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus);
    window_.installEventFilter(this);
}

WaylandOverlay::~WaylandOverlay() {
    window_.removeEventFilter(this);
    hide();
}

void WaylandOverlay::setFrame(const Rect& frame) {
    const auto arrangement = ScreenArrangement::current();
    const auto target = arrangement.coordinates.logicalRect(frame);
    auto* screen = target ? arrangement.screens[static_cast<qsizetype>(target->screen)] : nullptr;
    if (!screen || screen != screen_ || screen->devicePixelRatio() != ratio_)
        hide();
    screen_ = screen;
    if (!screen)
        return;
    ratio_ = screen->devicePixelRatio();
    desktopFrame_ = frame;
    const Rect& logical = target->logical;
    frame_ = QRectF(logical.x, logical.y, logical.width, logical.height).toRect();
    if (layerSurface_)
        resize();
    else
        show();
}

void WaylandOverlay::orderFrontRegardless() {
    ordered_ = true;
    show();
}

void WaylandOverlay::setOutline(const Path& outline, const std::vector<Rect>& inputRects) {
    outline_ = outlineRegion(outline, 1);
    extraInput_ = rectsRegion(inputRects, 1);
    if (!layerSurface_)
        return;
    setInputRegion();
    if (geometry().size() != window_.size())
        resize_->request(); // not while the frame is being drawn
}

void WaylandOverlay::setIgnoresMouseEvents(bool ignores) {
    if (std::exchange(ignoresMouseEvents_, ignores) != ignores && layerSurface_)
        setInputRegion();
}

bool WaylandOverlay::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Close:
        layerSurface_.reset();
        break;
    case QEvent::PlatformSurface:
        if (static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
            QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed)
            layerSurface_.reset();
        break;
    case QEvent::Enter:
    case QEvent::MouseMove:
        pointer_.moveWithin(desktopFrame_, static_cast<QSinglePointEvent&>(*event));
        break;
    case QEvent::FocusIn:
        if (popupHasKeyboard())
            returnFocusSoon();
        break;
    case QEvent::Leave:
        pointer_.leave();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

/// The geometry of the window, as high as its content.
QRect WaylandOverlay::geometry() const {
    const bool low = outline_.boundingRect().bottom() + glow <= lowHeight;
    return {frame_.topLeft(),
            QSize(frame_.width(), low ? std::min(lowHeight, frame_.height()) : frame_.height())};
}

void WaylandOverlay::show() {
    if (!ordered_ || !screen_ || layerSurface_)
        return;
    retry_.reset();
    window_.setScreen(screen_);
    window_.setGeometry(geometry());
    window_.create();
    layerSurface_.emplace(compositor_, surface(), WaylandCompositor::output(*screen_),
                          geometry().size(),
                          LayerSurface::Handlers{[this] { window_.show(); }, [this] { closed(); }});
    setInputRegion();
}

/// Destroys the layer surface before the surface.
void WaylandOverlay::hide() {
    if (closePopup_)
        closePopup_();
    layerSurface_.reset();
    window_.hide();
    window_.destroy();
    pointer_.leave();
}

void WaylandOverlay::closed() {
    hide();
    retry_ = mainLoop_.scheduleOnce(retryDelay, [this] { show(); });
}

void WaylandOverlay::resize() {
    const QRect geometry = this->geometry();
    if (!layerSurface_ || geometry == window_.geometry())
        return;
    layerSurface_->setSize(geometry.size());
    window_.setGeometry(geometry);
}

/// Takes effect with the next frame.
void WaylandOverlay::setInputRegion() {
    const WaylandObject<wl_region> region(wl_compositor_create_region(compositor_.surfaces()));
    for (const QRect& rect : ignoresMouseEvents_ ? outline_ : outline_ | extraInput_)
        wl_region_add(region.get(), rect.x(), rect.y(), rect.width(), rect.height());
    wl_surface_set_input_region(surface(), region.get());
}

void WaylandOverlay::popupOpens(xdg_popup* popup, std::function<void()> close) {
    closePopup_ = std::move(close);
    layerSurface_->adoptPopup(popup);
    if (!popupHasKeyboard()) // before the grab
        layerSurface_->setKeyboardExclusive(true);
}

void WaylandOverlay::popupClosed() {
    closePopup_ = nullptr;
    if (popupHasKeyboard())
        returnFocusSoon();
    else if (layerSurface_)
        layerSurface_->setKeyboardExclusive(false);
}

/// Whether the compositor gives the keyboard to a layer surface's popup, not to the surface itself.
/// Such compositors also leave it with a clicked layer surface that does not request it.
bool WaylandOverlay::popupHasKeyboard() const {
    return compositor_.layerShellVersion() < 4;
}

void WaylandOverlay::returnFocusSoon() {
    focusDelay_ = mainLoop_.scheduleOnce(focusDelay, [this] { returnFocus(); });
}

/// Does nothing while a press may open the menu or the menu is open.
void WaylandOverlay::returnFocus() {
    if (!layerSurface_ || !hasFocus())
        return;
    if (QGuiApplication::mouseButtons() != Qt::NoButton || closePopup_)
        returnFocusSoon();
    else
        focusReturn_.start(WaylandCompositor::output(*screen_));
}

/// Whether the overlay has the focus. After a popup Qt may have no focus window instead.
bool WaylandOverlay::hasFocus() const {
    const auto* focused = QGuiApplication::focusWindow();
    return focused == &window_ || (popupHasKeyboard() && !focused);
}

} // namespace brellowind::platform
