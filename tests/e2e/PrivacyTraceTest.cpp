#include "e2e/PrivacyFixture.h"
#include "e2e/SystemCalls.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>

// What the program touches in the course of a whole day of a person who listens: every connection
// and every change of a file, as the system's own tracer sees it.
namespace brellowind::test {
namespace {

/// The calls of the system that matter here, of all threads of whatever is started by it.
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
        variables.value(QStringLiteral("XDG_RUNTIME_DIR")), // the toolkit sees that it is there
        configuration,
        configuration + QStringLiteral("/autostart"),
        loginEntry(),
    };
    // The entry has no name, and then another one, until it is whole.
    const QString unfinishedEntry = configuration + QStringLiteral("/autostart/brellowind.desktop.");
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
