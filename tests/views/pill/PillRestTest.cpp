#include "views/NotchRootModel.h"
#include "views/pill/Stage.h"

#include <QSignalSpy>

namespace brellowind {
namespace {

using namespace std::chrono_literals;

/// The pill with its clock running.
class PillRest : public test::Stage {
protected:
    PillRest() { FrameDriver::shared().thaw(); }
    ~PillRest() override { FrameDriver::shared().freeze(1000); }

    void waitForRest() {
        EXPECT_TRUE(QTest::qWaitFor([this] {
            machine.runTurns();
            return !FrameDriver::shared().isRunning();
        }));
        QSignalSpy frames(&window, &SceneWindow::frameShown);
        for (int i = 0; i < 20 && (i == 0 || frames.count() > 0); ++i) { // the last ones
            frames.clear();
            QTest::qWait(50);
        }
    }
};

TEST_F(PillRest, MakesNoFrames) {
    machine.appear();
    waitForRest();
    const QSignalSpy frames(&window, &SceneWindow::frameShown);
    QTest::qWait(300);
    EXPECT_EQ(frames.count(), 0);
}

TEST_F(PillRest, IsReachedAgainAfterEveryMotion) {
    machine.appear();
    waitForRest();
    const QSignalSpy frames(&window, &SceneWindow::frameShown);
    machine.view.tapBackground();
    machine.runTurns();
    EXPECT_TRUE(FrameDriver::shared().isRunning());
    waitForRest();
    const auto made = frames.count();
    EXPECT_GT(made, 1);
    QTest::qWait(300);
    EXPECT_EQ(frames.count(), made);
}

TEST_F(PillRest, IsNotDisturbedByTicksThatChangeNoLine) {
    machine.spotify.plays = true;
    machine.appearAnswered(platform::HttpResponse{404, ""});
    machine.view.hoverWaveform(true); // no wave runs then
    machine.advance(200ms);
    waitForRest();
    const auto* model = window.findChild<NotchRootModel*>();
    ASSERT_NE(model, nullptr);
    const QSignalSpy frames(&window, &SceneWindow::frameShown);
    const QSignalSpy lines(model, &NotchRootModel::currentLineTextChanged);
    const QSignalSpy tracks(model, &NotchRootModel::trackChanged);
    const QSignalSpy covers(model, &NotchRootModel::coverImageChanged);
    const QSignalSpy playing(model, &NotchRootModel::isPlayingChanged);
    const QSignalSpy forms(model, &NotchRootModel::formChanged);
    int redraws = 0;
    const auto subscription = machine.view.onRedraw([&] { ++redraws; });
    machine.advance(5s);
    QTest::qWait(100);
    EXPECT_GE(redraws, 100);
    EXPECT_EQ(lines.count() + tracks.count() + covers.count() + playing.count() + forms.count(), 0);
    EXPECT_EQ(frames.count(), 0);
    EXPECT_FALSE(FrameDriver::shared().isRunning());
}

TEST_F(PillRest, IsNotDisturbedByThePointerMovingOnThePill) {
    machine.appear();
    machine.movePointer(test::View::overThePill);
    hover(onWindow(pill(), {100, 45}));
    waitForRest();
    const QSignalSpy frames(&window, &SceneWindow::frameShown);
    for (int x = 101; x < 120; ++x) {
        machine.movePointer({test::View::overThePill.x + x - 100, test::View::overThePill.y});
        hover(onWindow(pill(), {static_cast<double>(x), 45}));
    }
    QTest::qWait(100);
    EXPECT_EQ(frames.count(), 0);
}

} // namespace
} // namespace brellowind
