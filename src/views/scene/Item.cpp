// SPDX-License-Identifier: MIT

#include "views/scene/Item.h"

#include "views/scene/SceneWindow.h"

#include <utility>

namespace brellowind {
namespace {

void clipWindow(QPainter& painter, const QRegion& region) {
    painter.setTransform({});
    painter.setClipRegion(region);
}

} // namespace

Item::Item(Item* parent) : parent_(parent) {
    if (!parent_)
        return;
    parent_->children_.push_back(this);
    setParent(parent_); // for findChild
    requestFrame();
}

/// Deletes the children first: each removes itself from `children_`.
Item::~Item() {
    while (!children_.empty())
        delete children_.back();
    if (auto* shownIn = window())
        shownIn->damage(rendered_.rect);
    if (parent_)
        std::erase(parent_->children_, this);
}

SceneWindow* Item::window() const {
    return parent_ ? parent_->window() : window_;
}

void Item::setSize(QSizeF size) {
    if (size == size_)
        return;
    size_ = size;
    update();
}

void Item::setVisible(bool visible) {
    if (visible == visible_)
        return;
    visible_ = visible;
    if (!parent_ || parent_->isVisible())
        notifyVisibility();
    requestFrame();
}

void Item::notifyVisibility() {
    visibilityChanged();
    for (auto* child : children_)
        if (child->visible_)
            child->notifyVisibility();
}

QTransform Item::transform(const Item* ancestor) const {
    QTransform whole;
    for (const auto* item = this; item && item != ancestor; item = item->parent_)
        whole *= item->transformToParent();
    return whole;
}

QTransform Item::transformToParent() const {
    if (scale_ == 1 && rotation_ == 0)
        return QTransform::fromTranslate(x(), y());
    const QPointF fixed = origin_ == Top          ? QPointF(width() / 2, 0)
                          : origin_ == BottomLeft ? QPointF(0, height())
                                                  : boundingRect().center();
    QTransform transform;
    transform.translate(x() + fixed.x(), y() + fixed.y());
    transform.rotate(rotation_);
    transform.scale(scale_, scale_);
    transform.translate(-fixed.x(), -fixed.y());
    return transform;
}

void Item::update() {
    stale_ = true;
    requestFrame();
}

void Item::requestFrame() {
    changed_ = true;
    if (parent_)
        parent_->requestFrame();
    else if (window_)
        window_->requestFrame();
}

double Item::pixelRatio() const {
    const auto* shownIn = window();
    return shownIn ? shownIn->devicePixelRatio() : 1;
}

/// Computes the render states of the item and its descendants for the next frame, and adds changed
/// areas to `damage`. `inherited` is that of the parent; `isInheritedNew` means that it has changed
/// since the last frame. With an empty `inherited.rect` nothing is visible.
void Item::updateRenderState(const RenderState& inherited, bool isInheritedNew, QRegion& damage) {
    if (!isInheritedNew && !changed_)
        return;
    RenderState state{transformToParent() * inherited.transform,
                      inherited.opacity * opacity_,
                      inherited.clip,
                      {}};
    const bool seen = visible_ && state.opacity > 0 && !inherited.rect.isEmpty();
    if (seen)
        state.rect = state.transform.mapRect(paintedRect()) & inherited.rect;
    if (stale_ || state != rendered_)
        damage |= SceneWindow::covering(rendered_.rect) | SceneWindow::covering(state.rect);
    stale_ = changed_ = false;
    rendered_ = state;

    state.rect = seen ? inherited.rect : QRectF();
    if (seen && clip_)
        state.clip = state.rect = state.transform.mapRect(boundingRect()) & inherited.rect;
    const bool isChildStateNew = state != std::exchange(childState_, state);
    for (auto* child : children_)
        child->updateRenderState(state, isChildStateNew, damage);
}

/// Draws what `updateRenderState` found within `region` of the window, to which `painter` is
/// clipped.
void Item::draw(QPainter& painter, const QRegion& region) {
    if (region.intersects(rendered_.rect.toAlignedRect())) {
        if (!rendered_.clip.isNull())
            clipWindow(painter, region & SceneWindow::covering(rendered_.clip));
        painter.setTransform(rendered_.transform);
        painter.setOpacity(rendered_.opacity);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                               QPainter::SmoothPixmapTransform);
        paint(painter);
        if (!rendered_.clip.isNull())
            clipWindow(painter, region);
    }
    for (auto* child : children_)
        child->draw(painter, region);
}

} // namespace brellowind
