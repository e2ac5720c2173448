// SPDX-License-Identifier: MIT

#include "e2e/ShellFixture.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace brellowind::test {
namespace {

/// A fake xdg-open on PATH that records its arguments.
class StandInOpener {
public:
    explicit StandInOpener(QProcessEnvironment& environment) {
        QFile script(folder_.filePath(QStringLiteral("xdg-open")));
        EXPECT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '<%s>' \"$@\" >>'" + opened_.toUtf8() + "'\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        environment.insert(QStringLiteral("PATH"),
                           folder_.path() + u':' + qEnvironmentVariable("PATH"));
    }

    /// All arguments so far, each in angle brackets.
    QString opened() const {
        QFile file(opened_);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private:
    QTemporaryDir folder_;
    QString opened_ = folder_.filePath(QStringLiteral("opened"));
};

const auto newer = QStringLiteral("99.0");
const auto address = QStringLiteral("https://downloads.invalid/99.0/a%20b.deb?from=app&c=%C3%A9#x");

class ShellUpdates : public ShellOnDesktop {
protected:
    /// The log lines of failed checks.
    QStringList failures() {
        return program->errors().filter(
            QRegularExpression(QStringLiteral("^Update check failed: .")));
    }

    bool showsVersion(const QString& more = {}) {
        return settings().shows(QStringLiteral("ver-") + Feed::ownVersion() + more);
    }
};

TEST_F(ShellUpdates, SaysThatACheckFailedAndTriesAgain) {
    feed.status = 404;
    feed.body = "<html>Not found</html>";
    startWithSettings();
    EXPECT_TRUE(settings().shows(QStringLiteral("Update check failed")));
    EXPECT_TRUE(showsVersion());
    EXPECT_EQ(failures().size(), 1);
    feed.status = 200;
    feed.body = Feed::release(Feed::ownVersion(), address);
    press("Try again");
    EXPECT_TRUE(settings().shows(QStringLiteral("Up to date")));
    EXPECT_EQ(feed.requests(), 2);
    EXPECT_EQ(failures().size(), 1);
}

TEST_F(ShellUpdates, DownloadOpensExactlyTheAddressOfTheRelease) {
    const StandInOpener opener(environment);
    feed.body = Feed::release(newer, address);
    startWithSettings();
    EXPECT_TRUE(settings().shows(QStringLiteral("Update Available")));
    EXPECT_TRUE(showsVersion(QStringLiteral("  →  ver-") + newer));
    press("Download update");
    EXPECT_TRUE(waitUntil([&] { return !opener.opened().isEmpty(); }));
    EXPECT_EQ(opener.opened(), u'<' + address + u'>');
    EXPECT_TRUE(settings().texts().contains(QStringLiteral("Update Available")));
    EXPECT_EQ(feed.requests(), 1);
}

TEST_F(ShellUpdates, ThePillsMenuOpensSettingsAndChecksBesideTheAppearance) {
    start();
    choose("Check for Updates…");
    EXPECT_TRUE(settingsAreInFront());
    EXPECT_TRUE(settings().shows(QStringLiteral("Launch at Login")));
    EXPECT_TRUE(checksBecome(2));
}

TEST_F(ShellUpdates, ThePillsMenuTurnsOpenSettingsFromAboutToGeneral) {
    startWithSettings();
    press("About");
    ASSERT_TRUE(settings().shows(QStringLiteral("Visit our website")));
    ASSERT_TRUE(checksBecome(1));
    const auto window = settings().window();
    choose("Check for Updates…");
    EXPECT_TRUE(settings().shows(QStringLiteral("Launch at Login")));
    EXPECT_FALSE(settings().texts().contains(QStringLiteral("Visit our website")));
    EXPECT_EQ(settings().window(), window);
    EXPECT_TRUE(checksBecome(3)) << "one for the menu, one for the appearance";
}

} // namespace
} // namespace brellowind::test
