// SPDX-License-Identifier: MIT

#include "e2e/PrivacyFixture.h"
#include "e2e/SystemCalls.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>

// The connections and file changes of the program during a simulated day, traced by strace.
namespace brellowind::test {
namespace {

/// The strace command for the relevant system calls, of all threads and child processes.
QStringList tracer(const QString& traceFile) {
    return {QStringLiteral("strace"), QStringLiteral("-D"),
            QStringLiteral("-f"),     QStringLiteral("-y"),
            QStringLiteral("-s"),     QStringLiteral("4096"),
            QStringLiteral("-e"),     QStringLiteral("trace=%file,%network,execve,execveat"),
            QStringLiteral("-o"),     traceFile};
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_F(Privacy, TouchesNothingButThePlayerTheServiceTheDisplayAndItsLoginEntry) {
    const QTemporaryDir folder;
    const QString traceFile = folder.filePath(QStringLiteral("trace"));
    demo::Companion probe(QStringLiteral("strace"),
                          {QStringLiteral("-o"), traceFile, QStringLiteral("true")});
    ASSERT_EQ(probe.finish(), 0)
        << "this machine lets no program trace another (ptrace), which this test needs";

    liveADay(tracer(traceFile));
    ASSERT_TRUE(waitUntil([&] { return tellsOfExit(contents(traceFile), 0); }));
    const auto calls = systemCalls(contents(traceFile));

    const QString busFile = desktop.bus.address().section(u'=', 1, 1).section(u',', 0, 0);
    const QSet<QString> places{
        QStringLiteral("inet:") + service.origin().mid(7), // lyrics, covers, the feed
        QStringLiteral("unix:@/tmp/.X11-unix/X") + desktop.xServer.display().mid(1),
        QStringLiteral("unix:") + busFile,                  // the session bus: the player
        QStringLiteral("unix:/run/dbus/system_bus_socket"), // whether the session is locked
    };
    for (const QString& place : destinations(calls))
        EXPECT_TRUE(places.contains(place)) << qPrintable(place);
    EXPECT_TRUE(destinations(calls).contains(QStringLiteral("inet:") + service.origin().mid(7)));

    const auto variables = desktop.environment();
    const QString configuration = variables.value(QStringLiteral("XDG_CONFIG_HOME"));
    const QSet<QString> files{
        variables.value(QStringLiteral("XDG_RUNTIME_DIR")), // checked by Qt
        configuration,
        configuration + QStringLiteral("/autostart"),
        loginEntry(),
    };
    // The entry is written to a temporary file.
    const QString unfinishedEntry =
        configuration + QStringLiteral("/autostart/brellowind.desktop.");
    const auto namelessFile = QStringLiteral("/proc/self/fd/");
    for (const QString& path : changedPaths(calls))
        EXPECT_TRUE(files.contains(path) || path.startsWith(unfinishedEntry) ||
                    path.startsWith(namelessFile))
            << qPrintable(path);
    EXPECT_TRUE(changedPaths(calls).contains(loginEntry()));

    EXPECT_EQ(programs(calls).size(), 1) << qPrintable(programs(calls).join(u' '));
}

} // namespace
} // namespace brellowind::test
