#pragma once

#include "views/scene/SceneWindow.h"

#include <QPainterPath>

namespace brellowind {

class FrameDriver;
class NotchRootView;
class Pill;

/// The contents of the notch window: it draws the pill at its top, the rest is clear.
class NotchView : public SceneWindow {
    Q_OBJECT

public:
    /// Both must outlive it.
    NotchView(NotchRootView& rootView, FrameDriver& frames);

Q_SIGNALS:
    /// The outline of the pill as the next frame will show it, in points of the window.
    void outlineChanged(const QPainterPath& outline);

protected:
    void aboutToShow() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Pill* pill_;
    QRectF pillRect_;
};

} // namespace brellowind
