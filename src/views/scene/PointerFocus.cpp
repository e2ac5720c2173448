// SPDX-License-Identifier: MIT

#include "views/scene/PointerFocus.h"

#include "views/scene/TapArea.h"

#include <ranges>
#include <utility>

namespace brellowind {
namespace {

/// Hit test: the topmost area at `position`, among `item` and its descendants, for which `accepts`
/// is true.
template <typename Accepts>
TapArea* topmost(const Item& item, QPointF position, const Accepts& accepts) {
    for (auto* child : item.childItems() | std::views::reverse) {
        if (!child->isVisible())
            continue;
        if (auto* found = topmost(*child, position, accepts))
            return found;
        auto* area = qobject_cast<TapArea*>(child);
        if (area && area->isEnabled() && accepts(*area) &&
            area->contains(area->mapFromScene(position)))
            return area;
    }
    return nullptr;
}

} // namespace

void PointerFocus::press(QPointF position, Qt::MouseButton button) {
    move(position);
    if (pressed_)
        return; // pressed by another button already
    auto* area = topmost(root_, position, [button](auto& found) { return found.acceptsButton(button); });
    if (area && button == Qt::RightButton) {
        area->requestMenu(position);
        return;
    }
    pressed_ = area;
    button_ = button;
}

void PointerFocus::release(QPointF position, Qt::MouseButton button) {
    if (pressed_ && button == button_) {
        TapArea& area = *std::exchange(pressed_, nullptr);
        if (area.contains(area.mapFromScene(position))) // else the tap is cancelled
            Q_EMIT area.tapped();
    }
    move(position);
}

void PointerFocus::move(QPointF position) {
    position_ = position;
    updateHover();
}

void PointerFocus::leave() {
    position_.reset();
    hover(nullptr);
}

void PointerFocus::cancel() {
    pressed_ = nullptr;
    leave();
}

void PointerFocus::updateHover() {
    if (!position_)
        return;
    auto* area = topmost(root_, *position_, [](auto& found) { return found.acceptsHover(); });
    hover(pressed_ && area != pressed_ ? nullptr : area);
}

void PointerFocus::hover(TapArea* area) {
    if (area == hovered_)
        return;
    if (auto* left = std::exchange(hovered_, area).data())
        left->setHovered(false);
    if (hovered_)
        hovered_->setHovered(true);
}

} // namespace brellowind
