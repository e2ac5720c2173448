#pragma once

#include "views/interaction/Accessible.h"

#include <QQuickItem>

namespace brellowind {

/// An unseen rectangle that is tapped and pointed at. Assistive programs press it by its name.
class TapArea : public QQuickItem, public Accessible {
    Q_OBJECT

public:
    TapArea(QAccessible::Role role, QQuickItem* parent);

    void setName(const QString& name);

    QAccessible::Role accessibleRole() const override { return role_; }
    QString accessibleName() const override { return name_; }
    bool isPressable() const override { return true; }
    void press() override { Q_EMIT tapped(); }

Q_SIGNALS:
    void tapped();

    /// The pointer came or went; for areas that accept hover events.
    void hoveredChanged(bool hovered);

    /// A tap of the right button, for areas that accept it, at a point of the desktop.
    void menuRequested(QPointF position);

protected:
    void hoverEnterEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void setHovered(bool hovered);

    QAccessible::Role role_;
    QString name_;
    bool hovered_ = false;
};

} // namespace brellowind
