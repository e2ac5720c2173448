// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"
#include "platform/Overlay.h"
#include "platform/linux/ScreenLock.h"
#include "platform/linux/x11/StayOnTop.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11Input.h"
#include "platform/linux/x11/X11ScreenSaver.h"

#include <QObject>
#include <QWindow>
#include <memory>
#include <optional>
#include <vector>

namespace brellowind::platform {

/// Makes a transparent Qt window an overlay on an X server.
///
/// The window is override-redirect, so that the window manager does not place, focus or list it,
/// and raises itself when it is covered. Hidden while the session is locked or the screen saver is
/// active.
class X11Overlay final : public QObject, public Overlay {
public:
    /// Sets the flags of `window`, which must have an alpha buffer but no native window. All
    /// references must outlive this object.
    X11Overlay(QWindow& window, MainLoop& mainLoop, ScreenLock& screenLock, X11Input& input);

    /// Does nothing if there is no screen.
    void setFrame(const Rect& frame) override;
    void orderFrontRegardless() override;
    void setOutline(const Path& outline, const std::vector<Rect>& inputRects) override;
    void present(const std::function<void()>& flush) override;
    void setIgnoresMouseEvents(bool ignores) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The state of the native window.
    struct Native {
        explicit Native(X11Overlay& overlay);

        std::unique_ptr<OverlayShape> shape;
        StayOnTop stayOnTop;
    };

    void adoptNativeWindow();
    void forbidShadow();
    void updateShape();
    void updateVisibility();

    QWindow& window_;
    MainLoop& mainLoop_;
    ScreenLock& screenLock_;
    X11Input& input_;
    X11Connection x11_;
    X11ScreenSaver screenSaver_;
    Subscription lockChange_;
    std::optional<Native> native_;
    Path outline_;
    std::vector<Rect> inputRects_;
    bool ignoresMouseEvents_ = true;
    bool ordered_ = false; ///< ordered front; may be hidden temporarily
};

} // namespace brellowind::platform
