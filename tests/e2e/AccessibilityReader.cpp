// SPDX-License-Identifier: MIT

#include "e2e/AccessibilityReader.h"

#include "session/EventLoop.h"

#include <QDBusMetaType>
#include <QDBusReply>
#include <QDBusVariant>
#include <QMap>
#include <gtest/gtest.h>
#include <utility>

namespace brellowind::test {
namespace {

const auto accessibleInterface = QStringLiteral("org.a11y.atspi.Accessible");

constexpr int deepest = 12;

} // namespace

const QDBusArgument& operator>>(const QDBusArgument& argument, Accessible& accessible) {
    argument.beginStructure();
    argument >> accessible.service >> accessible.path;
    argument.endStructure();
    return argument;
}

AccessibilityReader::AccessibilityReader(QDBusConnection session,
                                         const QProcessEnvironment& environment)
    : session_(std::move(session)) {
    tellActivatedServices(environment);
    auto enable = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Set"));
    enable.setArguments({QStringLiteral("org.a11y.Status"), QStringLiteral("IsEnabled"),
                         QVariant::fromValue(QDBusVariant(true))});
    EXPECT_EQ(session_.call(enable).type(), QDBusMessage::ReplyMessage);
    const QDBusReply<QString> address = session_.call(QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
        QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")));
    EXPECT_TRUE(address.isValid()) << qPrintable(address.error().message());
    name_ = address.value();
    EXPECT_TRUE(QDBusConnection::connectToBus(name_, name_).isConnected());
}

AccessibilityReader::~AccessibilityReader() {
    QDBusConnection::disconnectFromBus(name_);
}

std::optional<Accessible> AccessibilityReader::waitFor(const char* name, const char* role) {
    const Accessible desktop{QStringLiteral("org.a11y.atspi.Registry"),
                             QDBusObjectPath(QStringLiteral("/org/a11y/atspi/accessible/root"))};
    std::optional<Accessible> found;
    EXPECT_TRUE(waitUntil([&] {
        found = find(desktop, QString::fromUtf8(name), QString::fromUtf8(role), deepest);
        return found.has_value();
    })) << name
        << ", " << role;
    return found;
}

QRect AccessibilityReader::extents(const Accessible& accessible) {
    constexpr uint onTheDesktop = 0;
    const auto answer = ask(accessible, QStringLiteral("org.a11y.atspi.Component"), "GetExtents",
                            {QVariant::fromValue(onTheDesktop)});
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << qPrintable(answer.errorMessage());
    const auto numbers = answer.arguments().value(0).value<QDBusArgument>();
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    numbers.beginStructure();
    numbers >> x >> y >> width >> height;
    numbers.endStructure();
    return {x, y, width, height};
}

bool AccessibilityReader::press(const Accessible& accessible) {
    const QDBusReply<bool> done =
        ask(accessible, QStringLiteral("org.a11y.atspi.Action"), "DoAction", {0});
    return done.isValid() && done.value();
}

/// Sets the environment of services that the bus starts.
void AccessibilityReader::tellActivatedServices(const QProcessEnvironment& environment) {
    QMap<QString, QString> whole;
    for (const QString& key : environment.keys())
        whole.insert(key, environment.value(key));
    qDBusRegisterMetaType<QMap<QString, QString>>();
    auto update = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("UpdateActivationEnvironment"));
    update.setArguments({QVariant::fromValue(whole)});
    EXPECT_EQ(session_.call(update).type(), QDBusMessage::ReplyMessage);
}

QDBusMessage AccessibilityReader::ask(const Accessible& accessible, const QString& interface,
                                      const char* method, const QVariantList& arguments) {
    auto question = QDBusMessage::createMethodCall(accessible.service, accessible.path.path(),
                                                   interface, QString::fromLatin1(method));
    question.setArguments(arguments);
    return bus().call(question);
}

QString AccessibilityReader::nameOf(const Accessible& accessible) {
    const QDBusReply<QDBusVariant> name =
        ask(accessible, QStringLiteral("org.freedesktop.DBus.Properties"), "Get",
            {accessibleInterface, QStringLiteral("Name")});
    return name.isValid() ? name.value().variant().toString() : QString();
}

QString AccessibilityReader::roleOf(const Accessible& accessible) {
    const QDBusReply<QString> role = ask(accessible, accessibleInterface, "GetRoleName");
    return role.isValid() ? role.value() : QString();
}

std::optional<Accessible> AccessibilityReader::find(const Accessible& root, const QString& name,
                                                    const QString& role, int depth) {
    if (nameOf(root) == name && roleOf(root) == role)
        return root;
    if (depth == 0)
        return std::nullopt;
    const auto answer = ask(root, accessibleInterface, "GetChildren");
    if (answer.type() != QDBusMessage::ReplyMessage)
        return std::nullopt;
    for (const auto& child : qdbus_cast<QList<Accessible>>(answer.arguments().value(0)))
        if (auto found = find(child, name, role, depth - 1))
            return found;
    return std::nullopt;
}

} // namespace brellowind::test
