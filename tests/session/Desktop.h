// SPDX-License-Identifier: MIT

#pragma once

#include "companion/Companion.h"

#include <QDBusConnection>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <memory>

namespace brellowind::test {

/// A private session bus. Fails the test if it does not start.
class SessionBus {
public:
    SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    ~SessionBus();

    QString address() const { return address_; }

    /// This process's connection to it.
    QDBusConnection connection() const { return QDBusConnection(connectionName_); }

    /// Kills the bus, disconnecting all its clients.
    void end();

private:
    demo::Companion daemon_;
    QString address_;
    QString connectionName_;
};

/// A virtual X server. Fails the test if it does not start.
class XServer {
public:
    /// `screen` such as "1440x900x24".
    explicit XServer(const QString& screen);

    QString display() const { return display_; }

    void end() { server_.end(); }

private:
    demo::Companion server_;
    QString display_;
};

/// A private session bus, X server and home folder, and the environment for using them.
class Desktop {
public:
    explicit Desktop(const QString& screen = QStringLiteral("1440x900x24"));

    QProcessEnvironment environment() const;

    SessionBus bus;
    XServer xServer;

private:
    QTemporaryDir home_;
};

} // namespace brellowind::test
