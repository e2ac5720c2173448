#pragma once

#include "views/scene/Accessible.h"
#include "views/scene/Item.h"

namespace brellowind {

/// An unseen rectangle that is tapped and pointed at. Assistive programs press it by its name.
class TapArea : public Item, public Accessible {
    Q_OBJECT

public:
    TapArea(QAccessible::Role role, Item* parent);

    void setName(const QString& name);

    bool isEnabled() const { return enabled_; }
    void setEnabled(bool enabled);

    /// The left button is always taken.
    void takeRightButton() { takesRightButton_ = true; }
    bool takes(Qt::MouseButton button) const;

    bool mindsHovering() const { return mindsHovering_; }
    void mindHovering() { mindsHovering_ = true; }
    void setHovered(bool hovered);

    /// Pressed and released at a point of the window.
    void tap(Qt::MouseButton button, QPointF position);

    QAccessible::Role accessibleRole() const override { return role_; }
    QString accessibleName() const override { return name_; }
    bool isAvailable() const override { return enabled_; }
    bool isPressable() const override { return true; }
    void press() override { Q_EMIT tapped(); }

Q_SIGNALS:
    void tapped();

    /// The pointer came or went; for areas that mind hovering.
    void hoveredChanged(bool hovered);

    /// A tap of the right button, for areas that take it, at a point of the window.
    void menuRequested(QPointF position);

protected:
    void visibilityChanged() override;

private:
    QAccessible::Role role_;
    QString name_;
    bool enabled_ = true;
    bool takesRightButton_ = false;
    bool mindsHovering_ = false;
    bool hovered_ = false;
};

} // namespace brellowind
