// SPDX-License-Identifier: MIT

#include "session/Desktop.h"
#include "session/EventLoop.h"
#include "session/SendSignal.h"
#include "session/x11/XClient.h"

#include <QFile>
#include <QTemporaryFile>
#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <xcb/xcb.h>

namespace brellowind::test {
namespace {

/// The program, started as by a user.
class Start : public testing::Test {
protected:
    Start() { EXPECT_TRUE(errorFile_.open()); }

    void set(const char* variable, const char* value) {
        environment.insert(QString::fromLatin1(variable), QString::fromLatin1(value));
    }

    std::unique_ptr<demo::Companion> start() {
        return std::make_unique<demo::Companion>(QStringLiteral(BRELLOWIND_PROGRAM), QStringList(),
                                                 environment, errorFile_.fileName());
    }

    /// The override-redirect windows of the pill's size.
    static qsizetype pills(const XClient& screen) {
        return std::ranges::count_if(screen.stack(), [&](xcb_window_t window) {
            return screen.overridesRedirect(window) &&
                   screen.geometry(window).size() == QSize(640, 540);
        });
    }

    /// The content of standard error.
    QByteArray errors() {
        QFile file(errorFile_.fileName());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    Desktop desktop;
    QProcessEnvironment environment = desktop.environment();
    XClient x{desktop.xServer.display()};

private:
    QTemporaryFile errorFile_;
};

class StartWithQtPlatform : public Start, public testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(, StartWithQtPlatform,
                         testing::Values("", "xcb", "wayland", "wayland;xcb", "offscreen",
                                         "minimal", "nonsense"));

TEST_P(StartWithQtPlatform, ShowsThePill) {
    set("QT_QPA_PLATFORM", GetParam());
    const auto program = start();
    EXPECT_TRUE(waitUntil([&] { return pills(x) == 1; }));
    EXPECT_EQ(program->end(), 0);
    EXPECT_EQ(errors(), "");
}

class StartWithoutDisplay : public Start {
protected:
    void endsWithOneLine() {
        EXPECT_EQ(start()->finish(), 1);
        EXPECT_EQ(errors(),
                  "brellowind: there is neither a Wayland compositor with a layer shell nor an X "
                  "display to show the pill on\n");
    }
};

TEST_F(StartWithoutDisplay, SaysSoWhenItIsUnset) {
    environment.remove(QStringLiteral("DISPLAY"));
    endsWithOneLine();
}

TEST_F(StartWithoutDisplay, SaysSoWhenItIsEmpty) {
    set("DISPLAY", "");
    endsWithOneLine();
}

TEST_F(StartWithoutDisplay, SaysSoWhenItsServerIsNotThere) {
    set("DISPLAY", ":65000");
    endsWithOneLine();
}

TEST_F(StartWithoutDisplay, SaysSoWhenItsCompositorIsNotThere) {
    environment.remove(QStringLiteral("DISPLAY"));
    set("WAYLAND_DISPLAY", "wayland-none");
    endsWithOneLine();
}

TEST_F(StartWithoutDisplay, SaysSoWhateverQtIsToldToShowWindowsOn) {
    environment.remove(QStringLiteral("DISPLAY"));
    set("QT_QPA_PLATFORM", "offscreen");
    endsWithOneLine();
}

TEST_F(Start, EndsWithOneLineWhenTheDisplayGoes) {
    const auto program = start();
    EXPECT_TRUE(waitUntil([&] { return pills(x) == 1; }));
    desktop.xServer.end();
    EXPECT_EQ(program->finish(), 1);
    EXPECT_EQ(errors(), "brellowind: the display is gone\n");
}

class SecondStart : public Start {
protected:
    std::unique_ptr<demo::Companion> startFirst() {
        auto program = start();
        EXPECT_TRUE(waitUntil([&] { return pills(x) == 1; }));
        return program;
    }

    /// The settings are the only window that is not the pill's.
    bool settingsAppear() {
        return waitUntil([this] { return x.stack().size() > pills(x); });
    }
};

TEST_F(SecondStart, FindsTheFirstHoweverTheDisplayIsSpelled) {
    const auto first = startFirst();
    const QString display = desktop.xServer.display();
    QStringList spellings{display + QStringLiteral(".0"), QStringLiteral("unix/") + display};
    const QString unixColon = QStringLiteral("unix") + display;
    int number = 0;
    if (char* host = nullptr; xcb_parse_display(qPrintable(unixColon), &host, &number, nullptr)) {
        std::free(host);
        spellings.append(unixColon); // until libxcb 1.16
    }
    for (const QString& spelling : spellings) {
        environment.insert(QStringLiteral("DISPLAY"), spelling);
        EXPECT_EQ(start()->finish(), 0) << qPrintable(spelling);
        EXPECT_EQ(pills(x), 1) << qPrintable(spelling);
    }
    EXPECT_TRUE(settingsAppear());
    EXPECT_EQ(first->end(), 0);
}

TEST_F(SecondStart, HasAPillOfItsOwnOnAnotherDisplay) {
    const auto first = startFirst();
    const XServer another(QStringLiteral("1440x900x24"));
    environment.insert(QStringLiteral("DISPLAY"), another.display());
    const auto second = start();
    const XClient there(another.display());
    EXPECT_TRUE(waitUntil([&] { return pills(there) == 1; }));
    EXPECT_EQ(second->end(), 0);
    EXPECT_EQ(first->end(), 0);
}

TEST_F(SecondStart, EndsBeforeTheFirstAnswersWhichOpensTheSettingsLater) {
    const auto first = startFirst();
    sendSignal(SIGSTOP, *first);
    EXPECT_EQ(start()->finish(), 0);
    EXPECT_EQ(x.stack().size(), 1);
    sendSignal(SIGCONT, *first);
    EXPECT_TRUE(settingsAppear());
    EXPECT_EQ(first->end(), 0);
}

} // namespace
} // namespace brellowind::test
