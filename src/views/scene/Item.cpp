#include "views/scene/Item.h"

#include "views/scene/SceneWindow.h"

#include <algorithm>
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
        shownIn->damage(look_.rect);
    if (parent_)
        std::erase(parent_->children_, this);
}

SceneWindow* Item::window() const {
    return parent_ ? parent_->window() : window_;
}

void Item::stackBefore(const Item& sibling) {
    auto& siblings = parent_->children_;
    std::erase(siblings, this);
    siblings.insert(std::ranges::find(siblings, &sibling), this);
    makeStale();
    requestFrame();
}

void Item::makeStale() {
    stale_ = changed_ = true;
    for (auto* child : children_)
        child->makeStale();
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
        tellVisibility();
    requestFrame();
}

void Item::tellVisibility() {
    visibilityChanged();
    for (auto* child : children_)
        if (child->visible_)
            child->tellVisibility();
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

/// Computes how the next frame shows the item and its descendants, and adds what differs from the
/// last frame to `damage`. `around` is inherited from the parent, and `isAroundNew` tells whether
/// it differs from the last frame. With an empty `around.rect` nothing is visible.
void Item::takeLook(const Look& around, bool isAroundNew, QRegion& damage) {
    if (!isAroundNew && !changed_)
        return;
    Look look{transformToParent() * around.transform, around.opacity * opacity_, around.clip, {}};
    const bool seen = visible_ && look.opacity > 0 && !around.rect.isEmpty();
    if (seen)
        look.rect = look.transform.mapRect(paintedRect()) & around.rect;
    if (stale_ || look != look_)
        damage |= SceneWindow::covering(look_.rect) | SceneWindow::covering(look.rect);
    stale_ = changed_ = false;
    look_ = look;

    look.rect = seen ? around.rect : QRectF();
    if (seen && clip_)
        look.clip = look.rect = look.transform.mapRect(boundingRect()) & around.rect;
    const bool isInsideNew = look != std::exchange(inside_, look);
    for (auto* child : children_)
        child->takeLook(look, isInsideNew, damage);
}

/// Draws what `takeLook` found within `region` of the window, to which `painter` is clipped.
void Item::draw(QPainter& painter, const QRegion& region) {
    if (region.intersects(look_.rect.toAlignedRect())) {
        if (!look_.clip.isNull())
            clipWindow(painter, region & SceneWindow::covering(look_.clip));
        painter.setTransform(look_.transform);
        painter.setOpacity(look_.opacity);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                               QPainter::SmoothPixmapTransform);
        paint(painter);
        if (!look_.clip.isNull())
            clipWindow(painter, region);
    }
    for (auto* child : children_)
        child->draw(painter, region);
}

} // namespace brellowind
