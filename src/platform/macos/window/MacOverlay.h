// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Overlay.h"
#include "platform/Pointer.h"
#include "platform/macos/NativeOverlay.h"
#include "platform/macos/window/HoverEvents.h"

#include <QObject>
#include <QWindow>
#include <memory>
#include <vector>

namespace brellowind::platform {

/// Makes a transparent window of Qt an overlay on macOS.
///
/// A native window takes the mouse as a whole. So while this does not ignore mouse events the
/// native window takes them when the pointer is within the outline or what it reaches; elsewhere
/// they fall through. The pointer's movements are watched meanwhile.
class MacOverlay final : public QObject, public Overlay {
public:
    /// Sets the flags of `window`, whose native window does not exist yet. All outlive this.
    MacOverlay(QWindow& window, Pointer& pointer, MakeNativeOverlay makeNative);

    void setFrame(const Rect& frame) override;
    void orderFrontRegardless() override;
    void setOutline(const Path& outline, const std::vector<Rect>& inputRects) override;
    void setIgnoresMouseEvents(bool ignores) override;

    /// While a popup is open, nothing of the window is hovered.
    void setCovered(bool covered);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void adoptNativeWindow();
    std::optional<QPointF> pointerWithin();
    void updateHover();
    void takeMouse(bool takes);

    QWindow& window_;
    Pointer& pointer_;
    MakeNativeOverlay makeNative_;
    HoverEvents hover_{window_};
    std::unique_ptr<NativeOverlay> native_;
    Rect frame_;
    Path outline_;
    std::vector<Rect> inputRects_;
    bool ignoresMouseEvents_ = true;
    bool isCovered_ = false;
    bool takesMouse_ = false; ///< the native window does
    Subscription monitor_;    ///< while mouse events are not ignored
};

} // namespace brellowind::platform
