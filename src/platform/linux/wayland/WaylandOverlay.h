// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"
#include "platform/Overlay.h"
#include "platform/linux/wayland/FocusReturn.h"
#include "platform/linux/wayland/LayerSurface.h"
#include "platform/qt/WindowPointer.h"

#include <QObject>
#include <QPointer>
#include <QScreen>
#include <QWindow>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace brellowind::platform {

/// Makes a transparent Qt window an overlay with a layer shell. The outline always receives input,
/// which is reported to `pointer`; the other input rectangles only while the overlay does not
/// ignore mouse events.
///
/// The surface is only as high as its content, which saves memory and work of the compositor. It is
/// recreated for another screen or scale.
class WaylandOverlay final : public QObject, public Overlay {
public:
    /// Sets the flags of `window`, which must not have a native window. All references must outlive
    /// this object.
    WaylandOverlay(QWindow& window, const WaylandCompositor& compositor, WindowPointer& pointer,
                   MainLoop& mainLoop);
    ~WaylandOverlay() override;

    /// Hides the window if there is no screen.
    void setFrame(const Rect& frame) override;
    void orderFrontRegardless() override;
    void setOutline(const Path& outline, const std::vector<Rect>& inputRects) override;
    void setIgnoresMouseEvents(bool ignores) override;

    bool isShown() const { return layerSurface_.has_value(); }
    const QWindow& window() const { return window_; }
    wl_surface* surface() const { return WaylandCompositor::surface(window_); } ///< may be null

    /// Makes this overlay the parent of `popup`, before its grab. Calls `close` to close the popup
    /// before the overlay is hidden. REQUIRES: the overlay is shown.
    void popupOpens(xdg_popup* popup, std::function<void()> close);

    /// Call when the popup's role objects are destroyed.
    void popupClosed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QRect geometry() const;
    void show();
    void hide();
    void closed();
    void resize();
    void setInputRegion();
    void returnFocusSoon();
    void returnFocus();
    bool hasFocus() const;
    bool popupHasKeyboard() const;

    QWindow& window_;
    const WaylandCompositor& compositor_;
    WindowPointer& pointer_;
    MainLoop& mainLoop_;
    QPointer<QScreen> screen_; ///< the target screen
    QRect frame_;              ///< in Qt's coordinates
    Rect desktopFrame_;
    QRegion outline_;    ///< in points
    QRegion extraInput_; ///< in points
    bool ignoresMouseEvents_ = true;
    bool ordered_ = false;
    double ratio_ = 0; ///< pixels per point of `screen_` when the surface was made
    std::optional<LayerSurface> layerSurface_;
    std::unique_ptr<NextTurn> resize_;
    std::unique_ptr<Timer> retry_;
    FocusReturn focusReturn_{compositor_};
    std::unique_ptr<Timer> focusDelay_;
    std::function<void()> closePopup_; ///< null without a popup
};

} // namespace brellowind::platform
