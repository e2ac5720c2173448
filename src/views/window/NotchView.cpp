#include "views/window/NotchView.h"

#include "views/drawing/PillShape.h"
#include "views/pill/Pill.h"
#include "views/scene/Accessible.h"

namespace brellowind {

NotchView::NotchView(NotchRootView& rootView, FrameDriver& frames)
    : pill_(new Pill(rootView, frames, &root())) {
    installAccessibility();
}

void NotchView::resizeEvent(QResizeEvent* event) {
    SceneWindow::resizeEvent(event);
    pill_->fill(size());
}

void NotchView::aboutToShow() {
    const PillShape& shape = pill_->shape();
    const QRectF rect = shape.mapRectToScene(shape.boundingRect());
    if (rect == pillRect_)
        return;
    pillRect_ = rect;
    Q_EMIT outlineChanged(shape.transform().map(shape.outline()));
}

} // namespace brellowind
