// SPDX-License-Identifier: MIT

#include "platform/linux/SingleInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <utility>

namespace brellowind::platform {
namespace {

const QLatin1String interfaceName("org.brellowind.Brellowind");
const QLatin1String objectPath("/org/brellowind/Brellowind");

/// `text` as an element of a bus name.
QString nameElement(std::string_view text) {
    QString element = QStringLiteral("display");
    for (const char byte : text)
        element += (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
                           (byte >= 'a' && byte <= 'z')
                       ? QString(QLatin1Char(byte))
                       : QStringLiteral("_%1").arg(static_cast<unsigned char>(byte), 2, 16,
                                                   QLatin1Char('0'));
    return element;
}

} // namespace

SingleInstance::SingleInstance(QDBusConnection bus, std::string_view session,
                               std::function<void(const std::string&)> onSecondStart)
    : bus_(std::move(bus)), name_(interfaceName + u'.' + nameElement(session)),
      onSecondStart_(std::move(onSecondStart)) {}

SingleInstance::~SingleInstance() {
    bus_.unregisterService(name_);
    bus_.unregisterObject(objectPath);
}

bool SingleInstance::claim() {
    bus_.registerObject(objectPath, this, QDBusConnection::ExportScriptableSlots);
    if (!bus_.isConnected() || bus_.registerService(name_))
        return true;
    auto open =
        QDBusMessage::createMethodCall(name_, objectPath, interfaceName, QStringLiteral("Open"));
    open << qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    bus_.send(open);
    bus_.interface()->isServiceRegistered(name_); // a round trip: the bus has received the message
    return false;
}

void SingleInstance::Open(const QString& activationToken) {
    onSecondStart_(activationToken.toStdString());
}

} // namespace brellowind::platform
