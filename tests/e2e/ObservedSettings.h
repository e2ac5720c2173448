#pragma once

#include "e2e/Observer.h"

#include <QStringList>

namespace brellowind::test {

/// The settings window of the running program. Its elements go by their accessible names or by
/// their texts; only what can be seen is there.
class ObservedSettings {
public:
    explicit ObservedSettings(QDBusConnection bus);

    /// The native window; 0 while it is closed.
    quint32 window() const { return observer_.ask("Window").toUInt(); }

    /// Whether it has the keyboard.
    bool isActive() const { return observer_.ask("IsActive").toBool(); }

    /// Whether the program holds the window, be it open or not.
    bool exists() const { return observer_.ask("Exists").toBool(); }

    /// Every text that it shows.
    QStringList texts() const { return observer_.ask("Texts").toStringList(); }

    /// Waits until it shows a text.
    bool shows(const QString& text) const;

    /// A property of an element.
    QVariant property(const char* element, const char* name) const;

    /// Waits until an element rests somewhere in the window, and gives the middle of that place in
    /// points. Fails the running test when it does not.
    QPointF middleOf(const char* element) const;

private:
    Observer observer_;
};

} // namespace brellowind::test
