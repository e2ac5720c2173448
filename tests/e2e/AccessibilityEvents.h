// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

namespace brellowind::test {

/// Listens for name changes of accessible objects on the accessibility bus.
class AccessibilityEvents : public QObject {
    Q_OBJECT

public:
    /// Fails the test if the listener cannot be registered.
    explicit AccessibilityEvents(QDBusConnection bus);

    /// The object paths, in order.
    const QStringList& renamed() const { return renamed_; }

private Q_SLOTS:
    void take(const QDBusMessage& event);

private:
    QStringList renamed_;
};

} // namespace brellowind::test
