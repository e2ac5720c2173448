#pragma once

#include <QPainterPath>
#include <QQuickView>
#include <memory>

namespace brellowind {

class NotchRootView;
class PillShape;

/// The contents of the notch window: it draws the pill at its top, the rest is clear.
class NotchQuickView : public QQuickView {
    Q_OBJECT

public:
    explicit NotchQuickView(std::shared_ptr<NotchRootView> rootView);
    ~NotchQuickView() override;

Q_SIGNALS:
    /// The outline of the pill as the next frame will show it, in points of the window.
    void outlineChanged(const QPainterPath& outline);

private:
    void followOutline();

    PillShape* pill_ = nullptr;
    QRectF pillRect_;
};

} // namespace brellowind
