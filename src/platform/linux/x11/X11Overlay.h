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

/// Makes a transparent window of Qt an overlay on an X server.
///
/// It bypasses the window manager, so that none places, focuses or lists it, and raises itself when
/// another window covers it. While the session is locked or the screen saver is active it is
/// hidden.
class X11Overlay final : public QObject, public Overlay {
public:
    /// Sets the flags of `window`, whose native window does not exist yet. All outlive this.
    X11Overlay(QWindow& window, MainLoop& mainLoop, ScreenLock& screenLock, X11Input& input);

    /// Does nothing while there is no screen.
    void setFrame(const Rect& frame) override;
    void orderFrontRegardless() override;
    void setOutline(const Path& outline, const std::vector<Rect>& reach) override;
    void present(const std::function<void()>& flush) override;
    void setIgnoresMouseEvents(bool ignores) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What is bound to the native window.
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
    std::vector<Rect> reach_;
    bool ignoresMouseEvents_ = true;
    bool ordered_ = false; ///< in front, unless hidden for the time being
};

} // namespace brellowind::platform
