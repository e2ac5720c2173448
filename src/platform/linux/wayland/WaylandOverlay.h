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

/// Makes a transparent window of Qt an overlay by a layer shell. It takes the pointer within its
/// content's outline, always, and tells `pointer` where that is; within its reach only while it
/// does not ignore mouse events.
///
/// The surface is only as high as what it shows needs, which saves memory and the compositor's
/// work. It is made anew on another screen or at another scale.
class WaylandOverlay final : public QObject, public Overlay {
public:
    /// Sets the flags of `window`, whose native window does not exist yet. All outlive this.
    WaylandOverlay(QWindow& window, const WaylandCompositor& compositor, WindowPointer& pointer,
                   MainLoop& mainLoop);
    ~WaylandOverlay() override;

    /// Without a screen it is hidden.
    void setFrame(const Rect& frame) override;
    void orderFrontRegardless() override;
    void setOutline(const Path& outline, const std::vector<Rect>& reach) override;
    void setIgnoresMouseEvents(bool ignores) override;

    bool isShown() const { return layerSurface_.has_value(); }
    const QWindow& window() const { return window_; }
    wl_surface* surface() const { return WaylandCompositor::surface(window_); } ///< may be null

    /// Makes `popup`, whose grab is still to come, a child. `close` closes it, and is called before
    /// the overlay is hidden. REQUIRES: it is shown.
    void popupOpens(xdg_popup* popup, std::function<void()> close);

    /// The roles of the popup are gone.
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
    QPointer<QScreen> screen_; ///< that it belongs on
    QRect frame_;              ///< in Qt's coordinates
    Rect desktopFrame_;
    QRegion outline_; ///< in points
    QRegion reach_;   ///< in points
    bool ignoresMouseEvents_ = true;
    bool ordered_ = false;
    double ratio_ = 0; ///< pixels per point of `screen_` when it was placed
    std::optional<LayerSurface> layerSurface_;
    std::unique_ptr<NextTurn> resize_;
    std::unique_ptr<Timer> retry_;
    FocusReturn focusReturn_{compositor_};
    std::unique_ptr<Timer> focusDelay_;
    std::function<void()> closePopup_; ///< absent while there is none
};

} // namespace brellowind::platform
