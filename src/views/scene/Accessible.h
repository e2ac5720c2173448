// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessible>
#include <QString>

namespace brellowind {

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

/// Notifies assistive programs of a change of `object`, an `Accessible` item or a `SceneWindow`.
void announce(QObject& object, QAccessible::Event what);

} // namespace brellowind
