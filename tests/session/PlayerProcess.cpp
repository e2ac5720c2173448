// SPDX-License-Identifier: MIT

#include "session/PlayerProcess.h"

#include "session/EventLoop.h"
#include "session/SendSignal.h"

#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QDBusVariant>
#include <csignal>
#include <gtest/gtest.h>
#include <utility>

namespace brellowind::test {
namespace {

QProcessEnvironment environmentOf(const QDBusConnection& bus) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.name());
    return environment;
}

} // namespace

PlayerProcess::PlayerProcess(QDBusConnection bus, const QString& name)
    : PlayerProcess(bus, environmentOf(bus), name) {}

PlayerProcess::PlayerProcess(QDBusConnection bus, const QProcessEnvironment& environment,
                             const QString& name)
    : bus_(std::move(bus)), name_(QStringLiteral("org.mpris.MediaPlayer2.") + name) {
    process_ =
        std::make_unique<demo::Companion>(QStringLiteral(BRELLOWIND_DEMO_PLAYER),
                                          QStringList{QStringLiteral("--name"), name}, environment);
    EXPECT_TRUE(waitUntil([this] { return bus_.interface()->isServiceRegistered(name_).value(); }))
        << "the player did not start";
}

QVariantMap PlayerProcess::metadata(const QString& title, const QString& artist,
                                    const QString& album, qint64 lengthMs) {
    return {
        {QStringLiteral("mpris:trackid"), QStringLiteral("/com/spotify/track/test")},
        {QStringLiteral("mpris:length"), static_cast<qulonglong>(lengthMs * 1000)},
        {QStringLiteral("xesam:title"), title},
        {QStringLiteral("xesam:artist"), QStringList{artist}},
        {QStringLiteral("xesam:album"), album},
    };
}

QString PlayerProcess::status() {
    auto message = QDBusMessage::createMethodCall(name_, QStringLiteral("/org/mpris/MediaPlayer2"),
                                                  QStringLiteral("org.freedesktop.DBus.Properties"),
                                                  QStringLiteral("Get"));
    message.setArguments(
        {QStringLiteral("org.mpris.MediaPlayer2.Player"), QStringLiteral("PlaybackStatus")});
    const QDBusReply<QDBusVariant> reply = bus_.call(message);
    EXPECT_TRUE(reply.isValid()) << qPrintable(reply.error().message());
    return reply.value().variant().toString();
}

void PlayerProcess::quit() {
    call("Leave", {});
    EXPECT_TRUE(
        waitUntil([this] { return !bus_.interface()->isServiceRegistered(name_).value(); }));
}

void PlayerProcess::hang() {
    sendSignal(SIGSTOP, *process_);
}

void PlayerProcess::recover() {
    sendSignal(SIGCONT, *process_);
}

void PlayerProcess::kill() {
    const auto owner = [this] { return bus_.interface()->serviceOwner(name_).value(); };
    const QString killed = owner();
    sendSignal(SIGKILL, *process_);
    EXPECT_TRUE(waitUntil([&] { return owner() != killed; }));
}

QDBusMessage PlayerProcess::call(const char* method, const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(name_, QStringLiteral("/org/mpris/MediaPlayer2"),
                                                  QStringLiteral("org.brellowind.DemoPlayer"),
                                                  QString::fromLatin1(method));
    message.setArguments(arguments);
    auto reply = bus_.call(message);
    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << qPrintable(reply.errorMessage());
    return reply;
}

} // namespace brellowind::test
