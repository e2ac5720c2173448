// SPDX-License-Identifier: MIT

#include "e2e/ShellFixture.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryFile>

namespace brellowind::test {
namespace {

class ShellLogin : public ShellOnDesktop {
protected:
    static constexpr auto row = "Launch at Login";

    bool switchBecomes(bool on) {
        return waitUntil([&] { return settings().property(row, "on") == QVariant(on); });
    }

    QString entry() const {
        return desktop.environment().value(QStringLiteral("XDG_CONFIG_HOME")) +
               QStringLiteral("/autostart/brellowind.desktop");
    }

    QStringList lines() const {
        QFile file(entry());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll()).split(u'\n');
    }

    QString programFile() {
        return QFileInfo(QStringLiteral("/proc/%1/exe").arg(program->process().processId()))
            .symLinkTarget();
    }

    QStringList failures() {
        return program->errors().filter(
            QRegularExpression(QStringLiteral("^Launch-at-login error: .")));
    }
};

TEST_F(ShellLogin, SwitchedOnWritesAnEntryThatStartsThisProgram) {
    startWithSettings();
    EXPECT_TRUE(switchBecomes(false));
    press(row);
    EXPECT_TRUE(switchBecomes(true));
    ASSERT_TRUE(QFile::exists(entry()));
    EXPECT_TRUE(lines().contains(QStringLiteral("Exec=") + programFile()));
    demo::Companion validation(QStringLiteral("desktop-file-validate"), {entry()});
    EXPECT_EQ(validation.finish(), 0);
    EXPECT_TRUE(failures().isEmpty());
}

TEST_F(ShellLogin, SwitchedOffRemovesTheEntry) {
    startWithSettings();
    press(row);
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(entry()); }));
    press(row);
    EXPECT_TRUE(switchBecomes(false));
    EXPECT_FALSE(QFile::exists(entry()));
    EXPECT_TRUE(failures().isEmpty());
}

TEST_F(ShellLogin, SettingsShowWhatIsSoWhenTheyOpen) {
    startWithSettings();
    press(row);
    ASSERT_TRUE(switchBecomes(true));
    person.pressEscape();
    ASSERT_TRUE(settingsAreGone());
    choose("Open Settings");
    ASSERT_TRUE(settingsAreInFront());
    EXPECT_TRUE(switchBecomes(true));
    person.pressEscape();
    ASSERT_TRUE(settingsAreGone());
    ASSERT_TRUE(QFile::remove(entry()));
    choose("Open Settings");
    EXPECT_TRUE(switchBecomes(false));
}

TEST_F(ShellLogin, SwitchFallsBackAndLogsOneLineWhenNoEntryCanBeWritten) {
    QTemporaryFile noFolder;
    ASSERT_TRUE(noFolder.open());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), noFolder.fileName());
    startWithSettings();
    press(row);
    ASSERT_TRUE(waitUntil([&] { return !failures().isEmpty(); }));
    EXPECT_TRUE(switchBecomes(false));
    EXPECT_EQ(failures().size(), 1);
    press(row); // fails again only when it is switched on again
    EXPECT_TRUE(waitUntil([&] { return failures().size() == 2; }));
}

} // namespace
} // namespace brellowind::test
