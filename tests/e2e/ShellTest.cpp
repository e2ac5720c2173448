// SPDX-License-Identifier: MIT

#include "e2e/ShellFixture.h"
#include "session/SendSignal.h"

#include <QSet>
#include <csignal>
#include <cstdlib>
#include <memory>

namespace brellowind::test {
namespace {

/// Detects every pill that is mapped, however briefly.
class PillWatch {
public:
    explicit PillWatch(const QString& display) : client_(display) {
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(client_.get(), client_.root(), XCB_CW_EVENT_MASK, &mask);
        client_.finish();
    }

    /// The override-redirect windows of a pill's size.
    QSet<xcb_window_t> seen() {
        client_.finish();
        while (auto* event = xcb_poll_for_event(client_.get())) {
            const auto type = event->response_type & 0x7f;
            if (type == XCB_CREATE_NOTIFY)
                look(reinterpret_cast<const xcb_create_notify_event_t&>(*event));
            else if (type == XCB_CONFIGURE_NOTIFY)
                look(reinterpret_cast<const xcb_configure_notify_event_t&>(*event));
            std::free(event);
        }
        return seen_;
    }

private:
    void look(const auto& event) {
        if (event.override_redirect && event.width == 640 && event.height == 540)
            seen_.insert(event.window);
    }

    XClient client_;
    QSet<xcb_window_t> seen_;
};

class Shell : public ShellOnDesktop {
protected:
    /// A window of another program, focused.
    std::unique_ptr<PlainWindow> workInAnotherWindow() {
        auto other = std::make_unique<PlainWindow>(
            desktop.xServer.display(), QRect(0, 500, 1440, 400), PlainWindow::Kind::managed);
        EXPECT_TRUE(waitUntil([&] {
            if (x.focus() == other->id())
                return true;
            person.pressAt(x.geometry(other->id()).bottomRight() - QPoint(4, 4));
            return false; // the window manager may not have placed it yet
        }));
        return other;
    }

    void send(int signal) { sendSignal(signal, program->process()); }
};

TEST_F(Shell, StartsWithoutSettingsAndWithoutACheck) {
    start();
    EXPECT_TRUE(program->comesToRest());
    EXPECT_FALSE(settings().exists());
    EXPECT_EQ(feed.requests(), 0);
}

TEST_F(Shell, OpensSettingsFromThePillsMenu) {
    startWithSettings();
    EXPECT_TRUE(settings().shows(QStringLiteral("Launch at Login")));
    EXPECT_FALSE(x.overridesRedirect(settings().window()));
    EXPECT_TRUE(x.property(x.root(), "_NET_CLIENT_LIST").contains(settings().window()));
}

TEST_F(Shell, BringsOpenSettingsToTheFrontFromThePillsMenu) {
    startWithSettings();
    const auto another = workInAnotherWindow();
    const auto window = settings().window();
    choose("Open Settings");
    EXPECT_TRUE(settingsAreInFront());
    EXPECT_EQ(settings().window(), window) << "there is one settings window";
}

TEST_F(Shell, OpensSettingsOnTheGeneralTab) {
    startWithSettings();
    press("About");
    EXPECT_TRUE(settings().shows(QStringLiteral("Lyrics that live in your notch")));
    person.pressEscape();
    ASSERT_TRUE(settingsAreGone());
    choose("Open Settings");
    EXPECT_TRUE(settings().shows(QStringLiteral("Launch at Login")));
}

TEST_F(Shell, LivesOnWhenSettingsCloseAndFreesTheirWindow) {
    startWithSettings();
    person.pressEscape();
    EXPECT_TRUE(settingsAreGone());
    EXPECT_TRUE(program->process().isRunning());
    EXPECT_TRUE(x.isViewable(program->window()));
    choose("Open Settings");
    EXPECT_TRUE(settingsAreInFront()) << "they can be opened again";
}

TEST_F(Shell, SecondStartShowsTheSettingsOfTheFirstAndNoSecondPill) {
    PillWatch watch(desktop.xServer.display());
    start();
    EXPECT_EQ(program->startAgain(), 0);
    EXPECT_TRUE(settingsAreInFront());
    EXPECT_EQ(watch.seen(), QSet<xcb_window_t>{program->window()});
    EXPECT_TRUE(program->process().isRunning());
}

TEST_F(Shell, SecondStartBringsOpenSettingsToTheFront) {
    startWithSettings();
    const auto another = workInAnotherWindow();
    EXPECT_EQ(program->startAgain(), 0);
    EXPECT_TRUE(settingsAreInFront());
}

TEST_F(Shell, CanBeStartedAnewAfterItsEnd) {
    start();
    send(SIGTERM);
    ASSERT_EQ(program->process().finish(), 0);
    start();
    EXPECT_TRUE(program->process().isRunning());
}

TEST_F(Shell, QuitInSettingsEndsItWithoutAFault) {
    startWithSettings();
    press("Quit Brellowind");
    EXPECT_EQ(program->process().finish(), 0);
}

class ShellGetsSignal : public Shell, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(, ShellGetsSignal, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto& signal) { return ::sigabbrev_np(signal.param); });

TEST_P(ShellGetsSignal, EndsWithoutAFault) {
    start();
    send(GetParam());
    EXPECT_EQ(program->process().finish(), 0);
}

TEST_F(Shell, SurvivesItsTerminalWhenStartedByNohup) {
    auto& started = program.emplace(
        ProgramSession::on(desktop, environment, {QStringLiteral("nohup")}), service.origin());
    send(SIGHUP);
    EXPECT_TRUE(started.comesToRest());
    EXPECT_TRUE(started.process().isRunning());
    send(SIGTERM);
    EXPECT_EQ(started.process().finish(), 0);
}

TEST_P(ShellGetsSignal, EndsWithoutAFaultWhileSettingsAreOpenAndACheckWaits) {
    feed.hold();
    startWithSettings();
    ASSERT_TRUE(checksBecome(1));
    send(GetParam());
    EXPECT_EQ(program->process().finish(), 0);
}

} // namespace
} // namespace brellowind::test
