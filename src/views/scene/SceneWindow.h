#pragma once

#include "platform/MainLoop.h"
#include "views/scene/Item.h"
#include "views/scene/PointerFocus.h"

#include <QAccessible>
#include <QBackingStore>
#include <QImage>
#include <QRegion>
#include <QWindow>
#include <memory>

namespace brellowind {

/// A transparent window that shows items. It draws in memory, and of each frame only what differs
/// from the last one; while nothing changes there are no frames.
class SceneWindow : public QWindow {
    Q_OBJECT

public:
    explicit SceneWindow(QWindow* parent = nullptr);
    ~SceneWindow() override;

    /// As large as the window, around all items.
    Item& root() { return root_; }
    const Item& root() const { return root_; }

    /// A picture of all that the next frame would show.
    QImage grab();

    /// What the window is to assistive programs.
    virtual QAccessible::Role accessibleRole() const { return QAccessible::Window; }
    QAccessibleInterface* accessibleRoot() const override;

Q_SIGNALS:
    /// A frame is on its way to the screen.
    void frameShown();

protected:
    /// Right before every frame.
    virtual void aboutToShow() {}

    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class Item;

    /// The smallest rectangle around `rect` that begins and ends at whole points.
    static QRegion covering(const QRectF& rect);

    void requestFrame();
    void damage(const QRectF& rect); ///< it has to be drawn anew
    void makeFrame();
    void paintStore(const QRegion& region);
    void takeLooks();

    Item root_;
    PointerFocus pointer_{root_};
    QBackingStore store_{this};
    double ratio_ = 0; ///< pixels in a point of what `store_` holds
    QRegion damage_;
    std::unique_ptr<platform::NextTurn> nextTurn_; ///< makes a frame
};

} // namespace brellowind
