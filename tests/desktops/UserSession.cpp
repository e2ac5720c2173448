// SPDX-License-Identifier: MIT

#include "desktops/UserSession.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <initializer_list>
#include <sys/stat.h>
#include <unistd.h>

namespace brellowind::test {
namespace {

constexpr uid_t nobody = 65534;
constexpr int patienceMs = 20000;

bool isRoot() {
    return ::geteuid() == 0;
}

void giveToUser(const QString& path) {
    if (isRoot() && ::chown(QFile::encodeName(path).constData(), nobody, nobody) != 0)
        throw DesktopFailure(QStringLiteral("cannot give %1 to an ordinary user").arg(path));
}

/// The folder of X sockets, which needs permissions that an ordinary user cannot set.
void provideXSocketFolder() {
    constexpr auto folder = "/tmp/.X11-unix";
    if (isRoot() && ::mkdir(folder, 0777) == 0)
        ::chmod(folder, 01777);
}

QProcessEnvironment withoutAnyDesktop() {
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : environment.keys())
        for (const char* prefix :
             {"DBUS_", "DESKTOP_", "DISPLAY", "GDK_", "GNOME_", "KDE_", "KWIN_", "QT_", "SWAY",
              "WAYLAND_", "WLR_", "XAUTHORITY", "XDG_"})
            if (name.startsWith(QLatin1String(prefix)))
                environment.remove(name);
    return environment;
}

struct Command {
    QString program;
    QStringList arguments;
};

/// Whether the build folder is inaccessible to other users.
bool isBuildPrivate() {
    const QFileInfo test(QFile::symLinkTarget(QStringLiteral("/proc/self/exe")));
    for (QDir folder = test.dir(); !folder.isRoot(); folder.cdUp())
        if (!QFileInfo(folder.path()).permission(QFile::ExeOther))
            return true;
    return false;
}

Command asUser(const QString& program, const QStringList& arguments) {
    if (!isRoot())
        return {program, arguments};
    const QString id = QString::number(nobody);
    QStringList options{QStringLiteral("--reuid=") + id, QStringLiteral("--regid=") + id,
                        QStringLiteral("--clear-groups"), QStringLiteral("--pdeathsig=TERM")};
    if (isBuildPrivate())
        options += {QStringLiteral("--inh-caps=+dac_read_search"),
                    QStringLiteral("--ambient-caps=+dac_read_search")};
    return {QStringLiteral("setpriv"), options + QStringList{program} + arguments};
}

} // namespace

void requireProgram(const QString& program, const QString& package) {
    if (QStandardPaths::findExecutable(program).isEmpty())
        throw DesktopFailure(
            QStringLiteral("%1 is not installed: it is in the package %2").arg(program, package));
}

UserSession::UserSession()
    : folder_(QStringLiteral("/tmp/brellowind-desktop-XXXXXX")), environment_(withoutAnyDesktop()) {
    if (!folder_.isValid())
        throw DesktopFailure(folder_.errorString());
    giveToUser(folder());
    provideXSocketFolder();
    setVariable(QStringLiteral("HOME"), folder());
    setVariable(QStringLiteral("XDG_RUNTIME_DIR"), folder());
    setVariable(QStringLiteral("XDG_CONFIG_HOME"), file(QStringLiteral(".config")));
    setVariable(QStringLiteral("XDG_CACHE_HOME"), file(QStringLiteral(".cache")));
    setVariable(QStringLiteral("XDG_DATA_HOME"), file(QStringLiteral(".local/share")));
    setVariable(QStringLiteral("XDG_STATE_HOME"), file(QStringLiteral(".local/state")));
    startBus();
}

UserSession::~UserSession() {
    QDBusConnection::disconnectFromBus(folder());
}

void UserSession::writeFile(const QString& name, const QByteArray& content) const {
    QString parent;
    for (const QString& part : QFileInfo(name).path().split(QLatin1Char('/'))) {
        parent += part + QLatin1Char('/');
        if (QDir(folder()).mkdir(parent))
            giveToUser(file(parent));
    }
    QFile target(file(name));
    if (!target.open(QIODevice::WriteOnly) || target.write(content) != content.size())
        throw DesktopFailure(target.errorString());
    target.close();
    giveToUser(target.fileName());
}

void UserSession::setVariable(const QString& name, const QString& value) {
    environment_.insert(name, value);
}

std::unique_ptr<demo::Companion> UserSession::start(const QString& program,
                                                    const QStringList& arguments,
                                                    const QString& errorFile) const {
    return start(program, arguments, environment_, errorFile);
}

std::unique_ptr<demo::Companion> UserSession::start(const QString& program,
                                                    const QStringList& arguments,
                                                    const QProcessEnvironment& environment,
                                                    const QString& errorFile) const {
    const auto command = asUser(program, arguments);
    return std::make_unique<demo::Companion>(command.program, command.arguments, environment,
                                             errorFile.isEmpty() ? QString() : file(errorFile));
}

QByteArray UserSession::run(const QString& program, const QStringList& arguments) const {
    const auto command = asUser(program, arguments);
    QProcess process;
    process.setProcessEnvironment(environment_);
    process.start(command.program, command.arguments);
    if (!process.waitForFinished(patienceMs) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        throw DesktopFailure(QStringLiteral("%1 %2: %3")
                                 .arg(program, arguments.join(QLatin1Char(' ')),
                                      QString::fromUtf8(process.readAllStandardError())));
    return process.readAllStandardOutput();
}

void UserSession::startBus() {
    requireProgram(QStringLiteral("dbus-daemon"), QStringLiteral("dbus-daemon"));
    // Also allows root. Other users are excluded by the folder's permissions.
    writeFile(QStringLiteral("bus.conf"), QStringLiteral(R"(
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%1</listen>
  <auth>EXTERNAL</auth>
  <standard_session_servicedirs/>
  <policy context="default">
    <allow user="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)")
                                              .arg(file(QStringLiteral("bus")))
                                              .toUtf8());
    busDaemon_ = start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--config-file=") + file(QStringLiteral("bus.conf")),
                        QStringLiteral("--nofork"), QStringLiteral("--nosyslog"),
                        QStringLiteral("--print-address=1")});
    const QString address = busDaemon_->readLine();
    if (!QDBusConnection::connectToBus(address, folder()).isConnected())
        throw DesktopFailure(QStringLiteral("the session bus did not start"));
    setVariable(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address);
}

} // namespace brellowind::test
