// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QString>

namespace brellowind::test {

/// The D-Bus object of the login manager's session.
class FakeSession : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Session")
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(bool LockedHint READ lockedHint)

public:
    QString id() const { return QStringLiteral("7"); }
    bool lockedHint() const;

    bool locked = false;
    mutable int readings = 0;
};

/// A login manager with one session.
class FakeLoginManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    inline static const QString sessionPath = QStringLiteral("/org/freedesktop/login1/session/_37");

    /// Fails the test if it cannot register on `bus`.
    explicit FakeLoginManager(QDBusConnection bus);

    void setLockedHint(bool locked);
    void unlock();
    void announceChange(const QString& path, const QString& property, bool value);

    /// Number of reads of the hint.
    int hintReadings() const { return session_.readings; }

    Q_SCRIPTABLE Q_INVOKABLE QDBusObjectPath GetSession(const QString& id) const;

private:
    QDBusConnection bus_;
    FakeSession session_;
};

} // namespace brellowind::test
