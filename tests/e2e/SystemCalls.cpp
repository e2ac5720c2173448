// SPDX-License-Identifier: MIT

#include "e2e/SystemCalls.h"

#include <QRegularExpression>

namespace brellowind::test {
namespace {

const QList<QByteArray> connectingCalls{"connect",  "sendto", "sendmsg",
                                        "sendmmsg", "bind",   "listen"};

const QList<QByteArray> changingCalls{
    "creat",     "mkdir",    "mkdirat",   "mknod",     "mknodat",   "rename",    "renameat",
    "renameat2", "link",     "linkat",    "symlink",   "symlinkat", "unlink",    "unlinkat",
    "rmdir",     "truncate", "chmod",     "fchmodat",  "chown",     "lchown",    "fchownat",
    "utime",     "utimes",   "futimesat", "utimensat", "setxattr",  "lsetxattr", "removexattr",
    "mount",     "umount2",  "pivot_root"};

const QList<QByteArray> openingCalls{"open", "openat", "openat2"};

/// The quoted strings in the arguments.
QStringList quoted(const QByteArray& arguments) {
    static const QRegularExpression text(QStringLiteral(R"rx("((?:[^"\\]|\\.)*)")rx"));
    QStringList found;
    for (const auto& match : text.globalMatch(QString::fromUtf8(arguments)))
        found.append(match.captured(1));
    return found;
}

bool opensForWriting(const SystemCall& call) {
    for (const char* flag : {"O_WRONLY", "O_RDWR", "O_CREAT", "O_TRUNC", "O_APPEND", "O_TMPFILE"})
        if (call.arguments.contains(flag))
            return true;
    return false;
}

} // namespace

QList<SystemCall> systemCalls(const QByteArray& trace) {
    static const QRegularExpression form(QStringLiteral(R"(^\d+ +(\w+)\((.*)$)"));
    QList<SystemCall> calls;
    for (const QByteArray& line : trace.split('\n'))
        if (const auto match = form.match(QString::fromUtf8(line)); match.hasMatch())
            calls.append({match.captured(1).toUtf8(), match.captured(2).toUtf8()});
    return calls;
}

bool tellsOfExit(const QByteArray& trace, int status) {
    return trace.contains(" +++ exited with " + QByteArray::number(status) + " +++\n");
}

QStringList destinations(const QList<SystemCall>& calls) {
    static const QRegularExpression local(QStringLiteral(R"rx(sun_path=(@?)"([^"]*)")rx"));
    static const QRegularExpression internet(
        QStringLiteral(R"rx(sin_port=htons\((\d+)\), sin_addr=inet_addr\("([^"]*)"\))rx"));
    QStringList found;
    for (const auto& call : calls) {
        const QString arguments = QString::fromUtf8(call.arguments);
        const bool hasAddress = call.arguments.contains("sa_family=");
        if (!connectingCalls.contains(call.name) || (!hasAddress && call.name != "listen"))
            continue; // on a connected socket
        if (const auto unix = local.match(arguments); unix.hasMatch())
            found.append(QStringLiteral("unix:") + unix.captured(1) + unix.captured(2));
        else if (const auto inet = internet.match(arguments); inet.hasMatch())
            found.append(QStringLiteral("inet:") + inet.captured(2) + u':' + inet.captured(1));
        else
            found.append(QString::fromUtf8(call.name) + u'(' + arguments);
    }
    return found;
}

QStringList changedPaths(const QList<SystemCall>& calls) {
    QStringList paths;
    for (const auto& call : calls)
        if (changingCalls.contains(call.name) ||
            (openingCalls.contains(call.name) && opensForWriting(call)))
            paths += quoted(call.arguments);
    return paths;
}

QStringList programs(const QList<SystemCall>& calls) {
    QStringList paths;
    for (const auto& call : calls)
        if (call.name.startsWith("execve"))
            paths.append(quoted(call.arguments).value(0));
    return paths;
}

} // namespace brellowind::test
