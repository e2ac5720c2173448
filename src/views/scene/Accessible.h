// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessible>
#include <QString>

namespace brellowind {

class Item;
class SceneWindow;

/// The accessible interface of an item. Items that assistive programs can find derive from it.
class Accessible {
public:
    virtual ~Accessible() = default;

    virtual QAccessible::Role accessibleRole() const = 0;
    virtual QString accessibleName() const = 0;

    /// Whether it is exposed to assistive programs while visible.
    virtual bool isAvailable() const { return true; }

    virtual bool isPressable() const { return false; }
    virtual void press() {}

    virtual bool isFocusable() const { return false; }
    virtual bool isFocused() const { return false; }
};

/// Exposes the accessible items of every `SceneWindow`. Idempotent.
void installAccessibility();

// The functions below notify assistive programs. `item` must be `Accessible`.

/// The name of `item` has changed.
void announceName(Item& item);

/// `item` has become available or unavailable.
void announceVisibility(Item& item, bool visible);

/// `item` has received the focus.
void announceFocus(Item& item);

/// `menu` opens or has closed.
void announceMenu(SceneWindow& menu, bool open);

} // namespace brellowind
