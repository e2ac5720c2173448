// SPDX-License-Identifier: MIT

#include "platform/linux/XdgLinkOpener.h"

#include "session/EventLoop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

/// During its lifetime, PATH is a folder of the test.
class XdgLinkOpenerTest : public testing::Test {
protected:
    XdgLinkOpenerTest() { qputenv("PATH", folder.path().toUtf8()); }
    ~XdgLinkOpenerTest() override { qputenv("PATH", searchPath); }

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

TEST_F(XdgLinkOpenerTest, GivesTheLinkUnchangedToTheDesktop) {
    install();
    const char* link = "https://downloads.invalid/a%20b.deb?from=app&c=%C3%A9#x";
    EXPECT_TRUE(XdgLinkOpener(QProcessEnvironment::systemEnvironment()).open(link));
    EXPECT_EQ(written(), QStringLiteral("<%1><>").arg(QString::fromLatin1(link)));
}

TEST_F(XdgLinkOpenerTest, StartsItInTheEnvironmentThatItWasGiven) {
    install();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CHOICE"), QStringLiteral("theirs"));
    XdgLinkOpener opener(environment);
    qputenv("CHOICE", "ours");
    EXPECT_TRUE(opener.open("mailto:feedback@brellowind.example"));
    EXPECT_EQ(written(), QStringLiteral("<mailto:feedback@brellowind.example><theirs>"));
    qunsetenv("CHOICE");
}

TEST_F(XdgLinkOpenerTest, SaysWhenTheDesktopHasNoSuchCommand) {
    EXPECT_FALSE(
        XdgLinkOpener(QProcessEnvironment::systemEnvironment()).open("https://a.example/"));
}

TEST_F(XdgLinkOpenerTest, RefusesWhatIsNoAddress) {
    install();
    EXPECT_FALSE(XdgLinkOpener(QProcessEnvironment::systemEnvironment()).open(""));
}

} // namespace
} // namespace brellowind::platform
