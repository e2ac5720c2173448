// SPDX-License-Identifier: MIT

#include "views/window/PillWindow.h"

#include "views/drawing/PillShape.h"
#include "views/pill/Pill.h"
#include "views/scene/Accessible.h"

namespace brellowind {

PillWindow::PillWindow(NotchRootView& rootView, FrameDriver& frames,
                       platform::WindowSystem& windowSystem)
    : overlay_(windowSystem.makeOverlay(*this)),
      pill_(new Pill(rootView, frames, windowSystem, &root())) {
    installAccessibility();
}

void PillWindow::resizeEvent(QResizeEvent* event) {
    SceneWindow::resizeEvent(event);
    pill_->fill(size());
}

void PillWindow::present(const std::function<void()>& flush) {
    overlay_->present(flush);
}

void PillWindow::aboutToShow() {
    const PillShape& shape = pill_->shape();
    const QRectF rect = shape.mapRectToScene(shape.boundingRect());
    if (rect == pillRect_)
        return; // outline and input rectangles are unchanged, too
    pillRect_ = rect;
    const auto toWindow = [transform = shape.transform()](Point point) {
        const QPointF mapped = transform.map(QPointF(point.x, point.y));
        return Point{mapped.x(), mapped.y()};
    };
    overlay_->setOutline(shape.outline().mapped(toWindow), pill_->inputRects());
}

} // namespace brellowind
