// SPDX-License-Identifier: MIT

#include "platform/qt/QtLinkOpener.h"

#include "session/EventLoop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

/// During its lifetime, PATH is a folder of the test.
class QtLinkOpenerTest : public testing::Test {
protected:
    QtLinkOpenerTest() { qputenv("PATH", folder.path().toUtf8()); }
    ~QtLinkOpenerTest() override { qputenv("PATH", searchPath); }

    /// Installs a program that records its arguments and one environment variable.
    void install() const {
        QFile script(folder.filePath(QStringLiteral("xdg-open")));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '<%s>' \"$@\" \"$CHOICE\" >'" + draft.toUtf8() +
                     "' && /bin/mv '" + draft.toUtf8() + "' '" + opened.toUtf8() + "'\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// Waits for the program. Returns its record.
    QString written() const {
        EXPECT_TRUE(test::waitUntil([this] { return QFile::exists(opened); }));
        QFile file(opened);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    const QByteArray searchPath = qgetenv("PATH");
    QTemporaryDir folder;
    QString draft = folder.filePath(QStringLiteral("draft"));
    QString opened = folder.filePath(QStringLiteral("opened"));
};

TEST_F(QtLinkOpenerTest, GivesTheLinkUnchangedToTheDesktop) {
    install();
    const char* link = "https://downloads.invalid/a%20b.deb?from=app&c=%C3%A9#x";
    EXPECT_TRUE(QtLinkOpener(QProcessEnvironment::systemEnvironment()).open(link));
    EXPECT_EQ(written(), QStringLiteral("<%1><>").arg(QString::fromLatin1(link)));
}

TEST_F(QtLinkOpenerTest, StartsItInTheEnvironmentThatItWasGiven) {
    install();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CHOICE"), QStringLiteral("theirs"));
    QtLinkOpener opener(environment);
    qputenv("CHOICE", "ours");
    EXPECT_TRUE(opener.open("mailto:feedback@brellowind.example"));
    EXPECT_EQ(written(), QStringLiteral("<mailto:feedback@brellowind.example><theirs>"));
    qunsetenv("CHOICE");
}

TEST_F(QtLinkOpenerTest, SaysWhenTheDesktopHasNoSuchCommand) {
    EXPECT_FALSE(QtLinkOpener(QProcessEnvironment::systemEnvironment()).open("https://a.example/"));
}

TEST_F(QtLinkOpenerTest, RefusesWhatIsNoAddress) {
    install();
    EXPECT_FALSE(QtLinkOpener(QProcessEnvironment::systemEnvironment()).open(""));
}

} // namespace
} // namespace brellowind::platform
