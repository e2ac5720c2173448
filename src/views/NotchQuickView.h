#pragma once

#include <QPainterPath>
#include <QQuickWindow>
#include <memory>

namespace brellowind {

class NotchRootView;
class Pill;

/// The contents of the notch window: it draws the pill at its top, the rest is clear.
class NotchQuickView : public QQuickWindow {
    Q_OBJECT

public:
    explicit NotchQuickView(std::shared_ptr<NotchRootView> rootView);
    ~NotchQuickView() override;

    Pill& pill() { return *pill_; }

Q_SIGNALS:
    /// The outline of the pill as the next frame will show it, in points of the window.
    void outlineChanged(const QPainterPath& outline);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void followOutline();

    Pill* pill_;
    QRectF pillRect_;
};

} // namespace brellowind
