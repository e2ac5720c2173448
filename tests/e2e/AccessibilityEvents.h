#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

namespace brellowind::test {

/// Hears on the bus of assistive programs that things have another name now.
class AccessibilityEvents : public QObject {
    Q_OBJECT

public:
    /// Fails the running test when nobody takes note of the listener.
    explicit AccessibilityEvents(QDBusConnection bus);

    /// The paths of those things, in order.
    const QStringList& renamed() const { return renamed_; }

private Q_SLOTS:
    void take(const QDBusMessage& event);

private:
    QStringList renamed_;
};

} // namespace brellowind::test
