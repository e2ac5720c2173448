// SPDX-License-Identifier: MIT

#include "platform/qt/QtMainLoop.h"
#include "settings/UpdateChecker.h"
#include "settings/window/SettingsWindow.h"
#include "support/TestMachine.h"

#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>
#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // no header in gcc 12
#endif

namespace brellowind {
namespace {

/// A fake machine with Qt's main loop.
class SettingsWindowOnQtsLoop : public testing::Test {
protected:
    void openAndClose() {
        open();
        close();
    }

    void open() {
        settings.open();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(settings.window()));
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return updater->state.get() == UpdateState::checking(); }));
    }

    void close() {
        QTest::keyClick(settings.window(), Qt::Key_Escape);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !settings.window(); }));
        ASSERT_TRUE(QTest::qWaitFor([&] { return tasks.running() == 0; }));
    }

    test::TestMachine machine;
    platform::QtMainLoop mainLoop;
    TaskRunner tasks{mainLoop};
    test::FakeHttpClient http{mainLoop};
    SettingsRouter router;
    std::shared_ptr<UpdateChecker> updater =
        std::make_shared<UpdateChecker>(http, machine.log, machine.links, machine.constants);
    SettingsWindow settings{{.mainLoop = mainLoop,
                             .tasks = tasks,
                             .log = machine.log,
                             .loginItem = machine.loginItem,
                             .links = machine.links,
                             .constants = machine.constants,
                             .router = router,
                             .updater = *updater}};
};

TEST_F(SettingsWindowOnQtsLoop, OpensAndClosesAgainAndAgain) {
    for (int time = 1; time <= 3; ++time) {
        openAndClose();
        ASSERT_EQ(http.requests.size(), static_cast<std::size_t>(time));
        EXPECT_TRUE(http.requests.back()->aborted);
    }
}

/// Bytes on the heap.
std::size_t heap() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return __sanitizer_get_current_allocated_bytes(); // the sanitizer replaces the heap
#else
    return mallinfo2().uordblks + mallinfo2().hblkhd;
#endif
}

TEST_F(SettingsWindowOnQtsLoop, ClosingGivesTheMemoryBack) {
    openAndClose(); // first-time allocations of Qt, such as fonts and types
    openAndClose();
    const std::size_t closed = heap();
    open();
    const std::size_t opened = heap();
    close();
    ASSERT_GT(opened, closed + 200'000);
    EXPECT_LT(heap(), closed + (opened - closed) / 10);
}

TEST_F(SettingsWindowOnQtsLoop, ManyOpeningsLeaveNextToNothingBehind) {
    constexpr int openings = 15;
    constexpr std::size_t little = 5000; // bytes that Qt leaks per window
    if (heap() == 0)
        GTEST_SKIP() << "nobody counts the heap here";
    for (int time = 0; time < 5; ++time)
        openAndClose();
    const std::size_t before = heap();
    for (int time = 0; time < openings; ++time)
        openAndClose();
    EXPECT_LT(heap(), before + openings * little);
}

} // namespace
} // namespace brellowind
