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

/// A desktop that a test needs did not start. It fails the test that does not catch it.
class DesktopFailure : public std::runtime_error {
public:
    explicit DesktopFailure(const QString& message) : std::runtime_error(message.toStdString()) {}
};

/// Throws a DesktopFailure that names the Debian package when a program is not installed.
void requireProgram(const QString& program, const QString& package);

/// The session of an ordinary user: a private folder for everything that is written, and a session
/// bus. The user is the one who runs the tests, or the unprivileged "nobody" when that is root, who
/// may connect to everything in the session all the same.
class UserSession {
public:
    UserSession();
    UserSession(const UserSession&) = delete;
    UserSession& operator=(const UserSession&) = delete;
    ~UserSession();

    /// The home and XDG_RUNTIME_DIR; goes with this object.
    QString folder() const { return folder_.path(); }

    QString file(const QString& name) const { return folder_.filePath(name); }

    /// Writes a file that the user can read; folders in its name are made.
    void writeFile(const QString& name, const QByteArray& content) const;

    /// Leads programs into the session. No display is in it before somebody sets one.
    const QProcessEnvironment& environment() const { return environment_; }
    void setVariable(const QString& name, const QString& value);

    /// This process's own connection to the session bus.
    QDBusConnection bus() const { return QDBusConnection(folder()); }

    /// Starts a program as the user. Its standard error goes to `errorFile` in the folder, or
    /// without one where that of this process goes.
    std::unique_ptr<demo::Companion> start(const QString& program, const QStringList& arguments,
                                           const QString& errorFile = {}) const;

    /// The same with another environment, made from environment().
    std::unique_ptr<demo::Companion> start(const QString& program, const QStringList& arguments,
                                           const QProcessEnvironment& environment,
                                           const QString& errorFile) const;

    /// Runs a program as the user to its end and returns its standard output. Throws a
    /// DesktopFailure with its standard error when it fails.
    QByteArray run(const QString& program, const QStringList& arguments) const;

private:
    void startBus();

    QTemporaryDir folder_;
    QProcessEnvironment environment_;
    std::unique_ptr<demo::Companion> busDaemon_;
};

} // namespace brellowind::test
