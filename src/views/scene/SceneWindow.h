// SPDX-License-Identifier: MIT

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

/// A transparent window that shows a scene of items with software rendering. Each frame repaints
/// only the damaged region; without damage there are no frames.
class SceneWindow : public QWindow {
    Q_OBJECT

public:
    explicit SceneWindow(QWindow* parent = nullptr);
    ~SceneWindow() override;

    /// The root of all items, of the size of the window.
    Item& root() { return root_; }
    const Item& root() const { return root_; }

    /// Renders the whole window to an image.
    QImage grab();

    /// The role of the window for assistive programs.
    virtual QAccessible::Role accessibleRole() const { return QAccessible::Window; }
    QAccessibleInterface* accessibleRoot() const override;

Q_SIGNALS:
    /// Emitted after a frame was submitted to the window system.
    void frameShown();

protected:
    /// Called before every frame is drawn.
    virtual void aboutToShow() {}

    /// Presents a frame. `flush` submits it to the window system.
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
    void damage(const QRectF& rect); ///< schedules a repaint
    void makeFrame();
    void paintStore(const QRegion& region);
    void updateRenderStates();

    Item root_;
    PointerFocus pointer_{root_};
    QBackingStore store_{this};
    double ratio_ = 0; ///< pixels per point in `store_`; 0: it must be resized
    QRegion damage_;
    std::unique_ptr<platform::NextTurn> nextTurn_; ///< calls `makeFrame`
};

} // namespace brellowind
