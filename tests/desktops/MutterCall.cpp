// SPDX-License-Identifier: MIT

#include "desktops/MutterCall.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace brellowind::test {
namespace {

/// A service has the name of the first component of its interfaces.
QString serviceOf(const QString& interface) {
    return QStringLiteral("org.gnome.Mutter.") + interface.section(QLatin1Char('.'), 0, 0);
}

QVariant call(const UserSession& session, QDBusMessage message, const QVariantList& arguments) {
    message.setArguments(arguments);
    const auto reply = session.bus().call(message);
    if (reply.type() != QDBusMessage::ReplyMessage)
        throw DesktopFailure(message.member() + QStringLiteral(": ") + reply.errorMessage());
    const auto answer = reply.arguments().value(0);
    if (answer.canConvert<QDBusObjectPath>())
        return answer.value<QDBusObjectPath>().path();
    return answer;
}

} // namespace

QVariant callMutter(const UserSession& session, const QString& object, const QString& interface,
                    const char* method, const QVariantList& arguments) {
    return call(session,
                QDBusMessage::createMethodCall(serviceOf(interface), object,
                                               QStringLiteral("org.gnome.Mutter.") + interface,
                                               QLatin1String(method)),
                arguments);
}

QString mutterObject(const QString& interface) {
    return QStringLiteral("/org/gnome/Mutter/") + interface;
}

QVariant mutterProperty(const UserSession& session, const QString& object, const QString& interface,
                        const char* name) {
    return call(session,
                QDBusMessage::createMethodCall(serviceOf(interface), object,
                                               QStringLiteral("org.freedesktop.DBus.Properties"),
                                               QStringLiteral("Get")),
                {QStringLiteral("org.gnome.Mutter.") + interface, QString::fromLatin1(name)})
        .value<QDBusVariant>()
        .variant();
}

} // namespace brellowind::test
