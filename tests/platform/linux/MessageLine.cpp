// SPDX-License-Identifier: MIT

#include "platform/linux/MessageLine.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <cstdlib>

namespace brellowind::test {
namespace {

const auto senderName = QStringLiteral("message line");
const auto objectPath = QStringLiteral("/line");

} // namespace

MessageLine::MessageLine() : sender_(senderName) {
    connect(&server_, &QDBusServer::newConnection, this, [this](QDBusConnection receiver) {
        isOpen_ = receiver.registerVirtualObject(objectPath, this);
    });
    sender_ = QDBusConnection::connectToPeer(server_.address(), senderName);
    if (!sender_.isConnected())
        std::abort();
    while (!isOpen_)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

MessageLine::~MessageLine() {
    QDBusConnection::disconnectFromPeer(senderName);
}

QDBusMessage MessageLine::deliver(const QVariantList& arguments) {
    auto message =
        QDBusMessage::createMethodCall(QString(), objectPath, QString(), QStringLiteral("Deliver"));
    message.setArguments(arguments);
    received_ = QDBusMessage();
    if (!sender_.send(message))
        std::abort();
    while (received_.type() == QDBusMessage::InvalidMessage)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return received_;
}

QString MessageLine::introspect(const QString& path) const {
    Q_UNUSED(path)
    return {};
}

bool MessageLine::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    Q_UNUSED(connection)
    received_ = message;
    return true;
}

} // namespace brellowind::test
