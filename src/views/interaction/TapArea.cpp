#include "views/interaction/TapArea.h"

namespace brellowind {

TapArea::TapArea(QAccessible::Role role, QQuickItem* parent) : QQuickItem(parent), role_(role) {
    setAcceptedMouseButtons(Qt::LeftButton);
}

void TapArea::setName(const QString& name) {
    if (name == name_)
        return;
    name_ = name;
    announceName(*this);
}

void TapArea::hoverEnterEvent(QHoverEvent* /*event*/) {
    setHovered(true);
}

void TapArea::hoverLeaveEvent(QHoverEvent* /*event*/) {
    setHovered(false);
}

/// Whoever takes the press is told of the release.
void TapArea::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void TapArea::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept(); // two taps are two taps
}

/// While a button is down nobody is told of hovering.
void TapArea::mouseMoveEvent(QMouseEvent* event) {
    if (acceptHoverEvents())
        setHovered(contains(event->position()));
}

void TapArea::mouseReleaseEvent(QMouseEvent* event) {
    if (!contains(event->position()))
        return; // it was taken back
    if (event->button() == Qt::LeftButton)
        Q_EMIT tapped();
    else
        Q_EMIT menuRequested(event->globalPosition());
}

void TapArea::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemVisibleHasChanged || change == ItemEnabledHasChanged) {
        if (!isVisible() || !isEnabled())
            setHovered(false);
        announceVisibility(*this);
    }
    QQuickItem::itemChange(change, data);
}

void TapArea::setHovered(bool hovered) {
    if (hovered == hovered_)
        return;
    hovered_ = hovered;
    Q_EMIT hoveredChanged(hovered);
}

} // namespace brellowind
