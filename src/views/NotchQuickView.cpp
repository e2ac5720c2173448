#include "views/NotchQuickView.h"

#include "views/NotchRootModel.h"
#include "views/drawing/PillShape.h"
#include "views/interaction/Accessible.h"
#include "views/pill/Pill.h"

#include <utility>

namespace brellowind {

NotchQuickView::NotchQuickView(std::shared_ptr<NotchRootView> rootView)
    : pill_(new Pill(*new NotchRootModel(std::move(rootView), this), contentItem())) {
    installAccessibility();
    setColor(Qt::transparent);
    connect(this, &QQuickWindow::beforeSynchronizing, this, &NotchQuickView::followOutline);
}

NotchQuickView::~NotchQuickView() = default;

void NotchQuickView::resizeEvent(QResizeEvent* event) {
    QQuickWindow::resizeEvent(event);
    pill_->setSize(size());
}

void NotchQuickView::followOutline() {
    const PillShape& shape = pill_->shape();
    const QRectF rect = shape.mapRectToScene(shape.boundingRect());
    if (rect == pillRect_)
        return;
    pillRect_ = rect;
    bool affine = false;
    Q_EMIT outlineChanged(shape.itemTransform(nullptr, &affine).map(shape.outline()));
}

} // namespace brellowind
