// SPDX-License-Identifier: MIT

#include "views/pill/Stage.h"

#include <QAbstractEventDispatcher>
#include <QSignalSpy>
#include <chrono>

namespace brellowind {
namespace {

using namespace std::chrono_literals;

/// The pill with its clock running.
class PillRest : public test::OffscreenPill {
protected:
    PillRest() : OffscreenPill(std::make_unique<FrameDriver>()) {}

    bool isMoving() const {
        return !QAbstractEventDispatcher::instance()->registeredTimers(frames.get()).isEmpty();
    }

    void waitForRest() {
        EXPECT_TRUE(QTest::qWaitFor([this] {
            machine.runTurns();
            return !isMoving();
        }));
        QSignalSpy shown(&window, &SceneWindow::frameShown);
        for (int i = 0; i < 20 && (i == 0 || shown.count() > 0); ++i) { // the last ones
            shown.clear();
            QTest::qWait(50);
        }
    }
};

TEST_F(PillRest, MakesNoFrames) {
    machine.appear();
    waitForRest();
    const QSignalSpy shown(&window, &SceneWindow::frameShown);
    QTest::qWait(300);
    EXPECT_EQ(shown.count(), 0);
}

TEST_F(PillRest, IsReachedAgainAfterEveryMotion) {
    machine.appear();
    waitForRest();
    const QSignalSpy shown(&window, &SceneWindow::frameShown);
    machine.view.tapBackground();
    machine.runTurns();
    EXPECT_TRUE(isMoving());
    waitForRest();
    const auto made = shown.count();
    EXPECT_GT(made, 1);
    QTest::qWait(300);
    EXPECT_EQ(shown.count(), made);
}

TEST_F(PillRest, IsNotDisturbedByTicksThatChangeNoLine) {
    machine.spotify.plays = true;
    machine.appearAnswered(platform::HttpResponse{404, ""});
    machine.view.hoverWaveform(true); // no wave runs then
    machine.advance(200ms);
    waitForRest();
    const QSignalSpy shown(&window, &SceneWindow::frameShown);
    int redraws = 0;
    const auto subscription = machine.view.onRedraw([&] { ++redraws; });
    machine.advance(5s);
    QTest::qWait(100);
    EXPECT_GE(redraws, 100);
    EXPECT_EQ(shown.count(), 0);
    EXPECT_FALSE(isMoving());
}

TEST_F(PillRest, IsDisturbedByALineThatGlidesThirtyTimesASecond) {
    machine.spotify.title = std::string(100, 'H');
    machine.spotify.plays = true;
    machine.view.hoverWaveform(true); // no wave runs then
    machine.appearAnswered(platform::HttpResponse{404, ""});
    EXPECT_TRUE(QTest::qWaitFor([this] { return isMoving(); }));
    QSignalSpy shown(&window, &SceneWindow::frameShown);
    QTest::qWait(1000); // after the fade, before the glide
    shown.clear();
    const auto timer = std::chrono::steady_clock::now();
    QTest::qWait(1500);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - timer;
    EXPECT_GT(shown.count(), 1);
    EXPECT_LE(static_cast<double>(shown.count()), 31 * seconds.count() + 1);
}

TEST_F(PillRest, IsNotDisturbedByThePointerMovingOnThePill) {
    machine.appear();
    machine.movePointer(test::View::overThePill);
    hover(onWindow(pill(), {100, 45}));
    waitForRest();
    const QSignalSpy shown(&window, &SceneWindow::frameShown);
    for (int x = 101; x < 120; ++x) {
        machine.movePointer({test::View::overThePill.x + x - 100, test::View::overThePill.y});
        hover(onWindow(pill(), {static_cast<double>(x), 45}));
    }
    QTest::qWait(100);
    EXPECT_EQ(shown.count(), 0);
}

} // namespace
} // namespace brellowind
