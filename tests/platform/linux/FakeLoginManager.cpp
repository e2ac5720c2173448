// SPDX-License-Identifier: MIT

#include "FakeLoginManager.h"

#include <QDBusMessage>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

const auto managerPath = QStringLiteral("/org/freedesktop/login1");
const auto sessionInterface = QStringLiteral("org.freedesktop.login1.Session");

} // namespace

bool FakeSession::lockedHint() const {
    ++readings;
    return locked;
}

FakeLoginManager::FakeLoginManager(QDBusConnection bus) : bus_(std::move(bus)) {
    EXPECT_TRUE(bus_.registerObject(managerPath, this, QDBusConnection::ExportScriptableContents));
    EXPECT_TRUE(bus_.registerObject(managerPath + QStringLiteral("/session/auto"), &session_,
                                    QDBusConnection::ExportAllProperties));
    EXPECT_TRUE(bus_.registerObject(sessionPath, &session_, QDBusConnection::ExportAllProperties));
    EXPECT_TRUE(bus_.registerService(QStringLiteral("org.freedesktop.login1")));
}

QDBusObjectPath FakeLoginManager::GetSession(const QString& id) const {
    return QDBusObjectPath(id == session_.id() ? sessionPath : QStringLiteral("/none"));
}

void FakeLoginManager::setLockedHint(bool locked) {
    session_.locked = locked;
    announceChange(sessionPath, QStringLiteral("LockedHint"), locked);
}

void FakeLoginManager::unlock() {
    EXPECT_TRUE(bus_.send(
        QDBusMessage::createSignal(sessionPath, sessionInterface, QStringLiteral("Unlock"))));
}

void FakeLoginManager::announceChange(const QString& path, const QString& property, bool value) {
    auto signal =
        QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                   QStringLiteral("PropertiesChanged"));
    signal << sessionInterface << QVariantMap{{property, value}} << QStringList();
    EXPECT_TRUE(bus_.send(signal));
}

} // namespace brellowind::test
