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
    QTest::qWait(120);
    EXPECT_EQ(shown.count(), made);
}

TEST_F(PillRest, IsNotDisturbedByTicksThatChangeNoLine) {
    machine.spotify.plays = true;
    machine.appearAnswered(platform::HttpResponse{404, ""});
    machine.view.hoverWaveform(true); // no wave runs then
    machine.advance(200ms);
    waitForRest();
    const QSignalSpy shown(&window, &SceneWindow::frameShown);
    const auto& position = machine.view.nowPlaying().positionSec;
    const double before = position.get();
    machine.advance(5700ms); // almost a second after a reading
    QTest::qWait(100);
    EXPECT_GT(position.get(), before);
    EXPECT_EQ(shown.count(), 0);
    EXPECT_FALSE(isMoving());
}

TEST_F(PillRest, IsDisturbedByALineThatGlidesThirtyTimesASecond) {
    machine.spotify.plays = true;
    machine.spotify.position = 10;
    machine.view.hoverWaveform(true); // no wave runs then
    machine.appearAnswered(           // a line of two seconds glides for one of them
        test::synced("[00:10.00]" + std::string(100, 'H') + "\\n[00:12.00]next"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return isMoving(); }));
    QSignalSpy shown(&window, &SceneWindow::frameShown);
    QTest::qWait(600); // after the fade, when the glide begins
    shown.clear();
    const auto timer = std::chrono::steady_clock::now();
    QTest::qWait(500);
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
