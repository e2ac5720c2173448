#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>
#include <QVariantList>

namespace brellowind::test {

/// Sends messages to itself over a connection of its own, without a bus: what arrives is as a
/// program receives it. Needs a QCoreApplication.
class MessageLine : QDBusVirtualObject {
public:
    MessageLine();
    ~MessageLine() override;

    /// The message with `arguments` as it arrives.
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
