#include "views/NotchQuickView.h"

#include "views/NotchRootModel.h"
#include "views/drawing/PillShape.h"

#include <QQmlEngine>
#include <QQuickItem>

void qml_register_types_Brellowind_Views();

namespace brellowind {

NotchQuickView::NotchQuickView(std::shared_ptr<NotchRootView> rootView) {
    qml_register_types_Brellowind_Views();
    setColor(Qt::transparent);
    setResizeMode(QQuickView::SizeRootObjectToView);
    auto* model = new NotchRootModel(std::move(rootView), engine());
    setInitialProperties({{QStringLiteral("model"), QVariant::fromValue(model)}});
    setSource(QUrl(QStringLiteral("qrc:/Brellowind/Views/NotchView.qml")));
    pill_ = rootObject()->findChild<PillShape*>();
    connect(this, &QQuickWindow::beforeSynchronizing, this, &NotchQuickView::followOutline);
}

NotchQuickView::~NotchQuickView() = default;

void NotchQuickView::followOutline() {
    const QRectF rect = pill_->mapRectToScene(pill_->boundingRect());
    if (rect == pillRect_)
        return;
    pillRect_ = rect;
    bool affine = false;
    Q_EMIT outlineChanged(pill_->itemTransform(nullptr, &affine).map(pill_->outline()));
}

} // namespace brellowind
