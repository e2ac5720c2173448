// SPDX-License-Identifier: MIT

#include "desktops/Compositor.h"
#include "desktops/PressLog.h"
#include "session/EventLoop.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

/// The command lines of processes with a folder in their environment.
QStringList processesIn(const QString& folder) {
    QStringList found;
    for (const QString& process : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        const auto read = [&](const char* name) {
            QFile file(QStringLiteral("/proc/%1/%2").arg(process, QLatin1String(name)));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        if (read("environ").contains(folder.toUtf8()))
            found.append(QString::fromUtf8(read("cmdline").replace('\0', ' ')));
    }
    return found;
}

TEST(UserSessionTest, LeavesNoProcessAndNoFileBehind) {
    QString folder;
    {
        const auto desktop =
            Compositor::make(QStringLiteral(BRELLOWIND_COMPOSITOR), {.xWayland = true});
        folder = desktop->session().folder();
        desktop->session().run(QStringLiteral("xprop"), {QStringLiteral("-root")});
        const auto window = PressLog::fullScreen(*desktop, Qt::green);
        EXPECT_GE(processesIn(folder).size(), 4) << "bus, compositor, X server and window";
    }
    EXPECT_TRUE(waitUntil([&] { return processesIn(folder).isEmpty(); }))
        << qPrintable(processesIn(folder).join(QLatin1Char('\n')));
    EXPECT_FALSE(QDir(folder).exists());
}

TEST(UserSessionTest, GivesWhatItStartsToAnOrdinaryUser) {
    const auto desktop = Compositor::make(QStringLiteral(BRELLOWIND_COMPOSITOR), {});
    EXPECT_NE(desktop->session().run(QStringLiteral("id"), {QStringLiteral("-u")}), "0\n");
}

TEST(UserSessionTest, NamesThePackageOfAMissingProgram) {
    try {
        requireProgram(QStringLiteral("no-such-compositor"), QStringLiteral("the-package"));
        FAIL();
    } catch (const DesktopFailure& failure) {
        EXPECT_STREQ(failure.what(),
                     "no-such-compositor is not installed: it is in the package the-package");
    }
}

} // namespace
} // namespace brellowind::test
