// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>
#include <QVariantList>

namespace brellowind::test {

/// A loopback D-Bus connection without a bus, which marshals messages. Needs a QCoreApplication.
class MessageLine : QDBusVirtualObject {
public:
    MessageLine();
    ~MessageLine() override;

    /// The received message with `arguments`.
    QDBusMessage deliver(const QVariantList& arguments);

private:
    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    QDBusServer server_;
    QDBusConnection sender_;
    QDBusMessage received_;
    bool isOpen_ = false;
};

} // namespace brellowind::test
