// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Accessible.h"
#include "views/scene/Item.h"

namespace brellowind {

/// An invisible rectangle that receives taps and hovering. Assistive programs find it by its name
/// and can press it.
class TapArea : public Item, public Accessible {
    Q_OBJECT

public:
    TapArea(QAccessible::Role role, Item* parent);

    void setName(const QString& name);

    bool isEnabled() const { return enabled_; }
    void setEnabled(bool enabled);

    /// Accepts the right button, too. The left button is always accepted.
    void acceptRightButton() { acceptsRightButton_ = true; }
    bool acceptsButton(Qt::MouseButton button) const;

    bool acceptsHover() const { return acceptsHover_; }
    void acceptHover() { acceptsHover_ = true; }
    void setHovered(bool hovered);

    /// Makes it focusable for assistive programs, and reports whether it has the focus.
    void setFocused(bool focused);

    /// Handles a press of the right button; `position` is in points of the window.
    void requestMenu(QPointF position) { Q_EMIT menuRequested(position); }

    QAccessible::Role accessibleRole() const override { return role_; }
    QString accessibleName() const override { return name_; }
    bool isAvailable() const override { return enabled_; }
    bool isFocusable() const override { return isFocusable_; }
    bool isFocused() const override { return isFocused_; }
    bool isPressable() const override { return true; }
    void press() override { Q_EMIT tapped(); }

Q_SIGNALS:
    void tapped();

    /// The pointer has entered or left. Emitted only by areas that accept hovering.
    void hoveredChanged(bool hovered);

    /// A press of the right button, if accepted; `position` is in points of the window.
    void menuRequested(QPointF position);

protected:
    void visibilityChanged() override;

private:
    QAccessible::Role role_;
    QString name_;
    bool enabled_ = true;
    bool acceptsRightButton_ = false;
    bool acceptsHover_ = false;
    bool hovered_ = false;
    bool isFocusable_ = false;
    bool isFocused_ = false;
};

} // namespace brellowind
