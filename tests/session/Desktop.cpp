// SPDX-License-Identifier: MIT

#include "session/Desktop.h"

#include "session/EventLoop.h"

#include <gtest/gtest.h>

namespace brellowind::test {

SessionBus::SessionBus()
    : daemon_(QStringLiteral("dbus-daemon"),
              {QStringLiteral("--session"), QStringLiteral("--nofork"),
               QStringLiteral("--nosyslog"), QStringLiteral("--print-address=1")}),
      address_(daemon_.readLine()), connectionName_(address_) {
    EXPECT_FALSE(address_.isEmpty()) << "the session bus did not start";
    EXPECT_TRUE(QDBusConnection::connectToBus(address_, connectionName_).isConnected());
}

SessionBus::~SessionBus() {
    QDBusConnection::disconnectFromBus(connectionName_);
}

void SessionBus::end() {
    daemon_.end();
    EXPECT_TRUE(waitUntil([this] { return !connection().isConnected(); }));
}

XServer::XServer(const QString& screen)
    : server_(QStringLiteral("Xvfb"),
              {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
               QStringLiteral("0"), screen, QStringLiteral("-dpi"), QStringLiteral("96"),
               QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")}),
      display_(QStringLiteral(":") + server_.readLine()) {
    EXPECT_GT(display_.size(), 1) << "the X server did not start";
}

Desktop::Desktop(const QString& screen) : xServer(screen) {
    EXPECT_TRUE(home_.isValid());
}

QProcessEnvironment Desktop::environment() const {
    auto environment = QProcessEnvironment::systemEnvironment();
    const QString home = home_.path();
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/.config"));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), home + QStringLiteral("/.cache"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/.local/share"));
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    environment.insert(QStringLiteral("DISPLAY"), xServer.display());
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    return environment;
}

} // namespace brellowind::test
