// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowSystem.h"
#include "views/scene/SceneWindow.h"

#include <memory>

namespace brellowind {

class FrameDriver;
class NotchRootView;
class Pill;

/// The notch window: shows the pill at its top, the rest is transparent.
class PillWindow : public SceneWindow {
    Q_OBJECT

public:
    /// All references must outlive this object. Makes the window an overlay of `windowSystem`.
    PillWindow(NotchRootView& rootView, FrameDriver& frames, platform::WindowSystem& windowSystem);

    platform::Overlay& overlay() { return *overlay_; }

protected:
    void aboutToShow() override;
    void present(const std::function<void()>& flush) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    std::unique_ptr<platform::Overlay> overlay_;
    Pill* pill_;
    QRectF pillRect_;
};

} // namespace brellowind
