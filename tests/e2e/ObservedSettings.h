// SPDX-License-Identifier: MIT

#pragma once

#include "e2e/Observer.h"

#include <QStringList>

namespace brellowind::test {

/// The settings window of the running program. Elements are identified by accessible name or text;
/// invisible ones are not found.
class ObservedSettings {
public:
    explicit ObservedSettings(QDBusConnection bus);

    /// The native window; 0 while it is closed.
    quint32 window() const { return observer_.ask("Window").toUInt(); }

    /// Whether it has the keyboard focus.
    bool isActive() const { return observer_.ask("IsActive").toBool(); }

    /// Whether the window exists, open or not.
    bool exists() const { return observer_.ask("Exists").toBool(); }

    /// All visible texts.
    QStringList texts() const { return observer_.ask("Texts").toStringList(); }

    /// Waits until a text is visible.
    bool shows(const QString& text) const;

    /// A property of an element.
    QVariant property(const char* element, const char* name) const;

    /// Waits until an element's position is stable. Returns its centre in the window, in points.
    /// Fails the test after a timeout.
    QPointF middleOf(const char* element) const;

private:
    Observer observer_;
};

} // namespace brellowind::test
