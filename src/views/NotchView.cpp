#include "views/NotchView.h"

#include "views/NotchRootModel.h"
#include "views/drawing/PillShape.h"
#include "views/interaction/Accessible.h"
#include "views/pill/Pill.h"

#include <utility>

namespace brellowind {

NotchView::NotchView(std::shared_ptr<NotchRootView> rootView)
    : pill_(new Pill(*new NotchRootModel(std::move(rootView), this), &root())) {
    installAccessibility();
}

NotchView::~NotchView() = default;

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
