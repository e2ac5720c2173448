#include "views/NotchQuickView.h"

#include <QScreen>
#include <algorithm>

void qml_register_types_Brellowind_Views();

namespace brellowind {

NotchQuickView::NotchQuickView(NotchRootView& rootView) : model_(new NotchRootModel(rootView)) {
    qml_register_types_Brellowind_Views();
    model_->setParent(this);
    setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus |
             Qt::WindowTransparentForInput);
    setColor(Qt::transparent);
    setResizeMode(QQuickView::SizeRootObjectToView);
    setInitialProperties({{QStringLiteral("model"), QVariant::fromValue(model_)}});
    setSource(QUrl(QStringLiteral("qrc:/Brellowind/Views/qml/NotchView.qml")));
    const QRect frame = screen()->geometry();
    const int width = std::min(frame.width(), 640);
    setGeometry(frame.x() + (frame.width() - width) / 2, frame.y(), width, 540);
}

} // namespace brellowind
