#pragma once

#include <QAccessible>
#include <QString>

namespace brellowind {

class Item;

/// What assistive programs learn of an item, and do with it. An item that is to be found derives
/// from it beside its own class.
class Accessible {
public:
    virtual ~Accessible() = default;

    virtual QAccessible::Role accessibleRole() const = 0;
    virtual QString accessibleName() const = 0;

    /// Whether it is to be found while it is visible.
    virtual bool isAvailable() const { return true; }

    virtual bool isPressable() const { return false; }
    virtual void press() {}
};

/// Lets assistive programs find the accessible items in windows of the pill's kinds. Once is
/// enough.
void installAccessibility();

/// Tells those who listen that the item, which is `Accessible`, has another name now.
void announceName(Item& item);

/// The same when it came to be found, or to be found no more.
void announceVisibility(Item& item, bool visible);

} // namespace brellowind
