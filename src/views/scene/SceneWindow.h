#pragma once

#include "platform/MainLoop.h"
#include "views/scene/Item.h"
#include "views/scene/PointerFocus.h"

#include <QAccessible>
#include <QBackingStore>
#include <QImage>
#include <QRegion>
#include <QWindow>
#include <functional>
#include <memory>

namespace brellowind {

/// A transparent window that shows items. It draws in memory, and in each frame only what differs
/// from the last one. While nothing changes it makes no frames.
class SceneWindow : public QWindow {
    Q_OBJECT

public:
    explicit SceneWindow(QWindow* parent = nullptr);
    ~SceneWindow() override;

    /// The root of all items. It has the size of the window.
    Item& root() { return root_; }
    const Item& root() const { return root_; }

    /// An image of the whole window as the next frame would show it.
    QImage grab();

    /// The role of the window for assistive programs.
    virtual QAccessible::Role accessibleRole() const { return QAccessible::Window; }
    QAccessibleInterface* accessibleRoot() const override;

Q_SIGNALS:
    /// Emitted after a frame was drawn and handed to the window system.
    void frameShown();

protected:
    /// Called before every frame is drawn.
    virtual void aboutToShow() {}

    /// Shows a frame that is drawn: calls `flush`, which hands it to the window system.
    virtual void present(const std::function<void()>& flush) { flush(); }

    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class Item;

    /// The smallest rectangle in whole points that contains `rect`.
    static QRegion covering(const QRectF& rect);

    void requestFrame();
    void damage(const QRectF& rect); ///< schedules its repainting
    void makeFrame();
    void paintStore(const QRegion& region);
    void takeLooks();

    Item root_;
    PointerFocus pointer_{root_};
    QBackingStore store_{this};
    double ratio_ = 0; ///< pixels per point in `store_`; 0: it must be resized
    QRegion damage_;
    std::unique_ptr<platform::NextTurn> nextTurn_; ///< calls `makeFrame`
};

} // namespace brellowind
