// SPDX-License-Identifier: MIT

#pragma once

#include "companion/Companion.h"

#include <QDBusConnection>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>
#include <stdexcept>

namespace brellowind::test {

/// The desktop of a test failed. Fails the test if not caught.
class DesktopFailure : public std::runtime_error {
public:
    explicit DesktopFailure(const QString& message) : std::runtime_error(message.toStdString()) {}
};

/// Throws a DesktopFailure with the Debian package's name if a program is not installed.
void requireProgram(const QString& program, const QString& package);

/// The session of an ordinary user: a private folder for all files, and a session bus. The user is
/// the current one, or "nobody" if that is root; root may connect to the session.
class UserSession {
public:
    UserSession();
    UserSession(const UserSession&) = delete;
    UserSession& operator=(const UserSession&) = delete;
    ~UserSession();

    /// HOME and XDG_RUNTIME_DIR; removed by the destructor.
    QString folder() const { return folder_.path(); }

    QString file(const QString& name) const { return folder_.filePath(name); }

    /// Writes a file that the user can read. Creates its folders.
    void writeFile(const QString& name, const QByteArray& content) const;

    /// The environment of programs in the session. Initially without a display.
    const QProcessEnvironment& environment() const { return environment_; }
    void setVariable(const QString& name, const QString& value);

    /// This process's connection to the session bus.
    QDBusConnection bus() const { return QDBusConnection(folder()); }

    /// Starts a program as the user. Its standard error goes to `errorFile` in the folder, or
    /// without one where that of this process goes.
    std::unique_ptr<demo::Companion> start(const QString& program, const QStringList& arguments,
                                           const QString& errorFile = {}) const;

    /// The same with another environment, made from environment().
    std::unique_ptr<demo::Companion> start(const QString& program, const QStringList& arguments,
                                           const QProcessEnvironment& environment,
                                           const QString& errorFile) const;

    /// Runs a program as the user and returns its standard output. Throws a DesktopFailure with its
    /// standard error if it fails.
    QByteArray run(const QString& program, const QStringList& arguments) const;

private:
    void startBus();

    QTemporaryDir folder_;
    QProcessEnvironment environment_;
    std::unique_ptr<demo::Companion> busDaemon_;
};

} // namespace brellowind::test
