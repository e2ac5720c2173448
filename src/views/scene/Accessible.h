#pragma once

#include <QAccessible>
#include <QString>

namespace brellowind {

class Item;
class SceneWindow;

/// What assistive programs can read and do. An item that they shall find derives from it as well.
class Accessible {
public:
    virtual ~Accessible() = default;

    virtual QAccessible::Role accessibleRole() const = 0;
    virtual QString accessibleName() const = 0;

    /// Whether assistive programs find it while it is visible.
    virtual bool isAvailable() const { return true; }

    virtual bool isPressable() const { return false; }
    virtual void press() {}

    virtual bool isFocusable() const { return false; }
    virtual bool isFocused() const { return false; }
};

/// Lets assistive programs find the accessible items of every `SceneWindow`. Idempotent.
void installAccessibility();

/// Notifies assistive programs that the name of `item`, which is `Accessible`, has changed.
void announceName(Item& item);

/// Notifies them that `item` can be found from now on, or no longer.
void announceVisibility(Item& item, bool visible);

/// Notifies them that `item` has the focus now.
void announceFocus(Item& item);

/// Notifies them that `menu` opens or has closed.
void announceMenu(SceneWindow& menu, bool open);

} // namespace brellowind
