// SPDX-License-Identifier: MIT

#include "views/scene/TapArea.h"

namespace brellowind {

TapArea::TapArea(QAccessible::Role role, Item* parent) : Item(parent), role_(role) {}

void TapArea::setName(const QString& name) {
    if (name == name_)
        return;
    name_ = name;
    announce(*this, QAccessible::NameChanged);
}

void TapArea::setEnabled(bool enabled) {
    if (enabled == enabled_)
        return;
    enabled_ = enabled;
    visibilityChanged();
}

bool TapArea::acceptsButton(Qt::MouseButton button) const {
    return button == Qt::LeftButton || (acceptsRightButton_ && button == Qt::RightButton);
}

void TapArea::visibilityChanged() {
    const bool visible = isVisible() && enabled_;
    if (!visible)
        setHovered(false);
    announce(*this, visible ? QAccessible::ObjectShow : QAccessible::ObjectHide);
}

void TapArea::setHovered(bool hovered) {
    if (hovered == hovered_)
        return;
    hovered_ = hovered;
    Q_EMIT hoveredChanged(hovered);
}

void TapArea::setFocused(bool focused) {
    isFocusable_ = true;
    isFocused_ = focused;
    if (focused)
        announce(*this, QAccessible::Focus);
}

} // namespace brellowind
