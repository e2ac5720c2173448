// SPDX-License-Identifier: MIT

#include "views/pill/Stage.h"

namespace brellowind {
namespace {

class PillTap : public test::Stage {
protected:
    std::size_t toggles() const { return machine.spotify.toggles(); }

    /// The pointer is over the pill, which is at rest.
    void lift() {
        machine.movePointer(test::View::overThePill);
        settle();
    }

    void openArtPanel() {
        click(artwork());
        settle();
    }
};

TEST_F(PillTap, OnTheBackgroundMinimizesAndRestores) {
    machine.appear();
    const QPoint line = onWindow(pill(), {100, 45});
    click(line);
    EXPECT_TRUE(form().isMinimized);
    settle();
    click(onWindow(pill(), {130, 15}));
    EXPECT_FALSE(form().isMinimized);
}

TEST_F(PillTap, InEveryCornerOfTheRectangleButTheCoversCounts) {
    machine.appear();
    const double right = pill()->width() - 1;
    const double bottom = pill()->height() - 1;
    for (const QPointF corner : {QPointF(right, 1), QPointF(1, bottom), QPointF(right, bottom)}) {
        const bool before = form().isMinimized;
        click(onWindow(pill(), corner));
        EXPECT_NE(form().isMinimized, before) << corner.x() << ", " << corner.y();
    }
}

TEST_F(PillTap, BesideThePillDoesNothing) {
    machine.appear();
    const auto before = form();
    click(onWindow(pill(), {-2, 20}));
    click(onWindow(pill(), {pill()->width() + 2, 20}));
    click(onWindow(pill(), {100, pill()->height() + 2}));
    EXPECT_EQ(form(), before);
}

TEST_F(PillTap, OnTheCoverOpensTheArtworkPanel) {
    machine.appear();
    click(artwork());
    EXPECT_TRUE(form().isArtExpanded);
    EXPECT_FALSE(form().isMinimized);
}

TEST_F(PillTap, InTheWholeCornerBesideTheCoverOpensTheArtworkPanel) {
    machine.appear();
    for (const QPointF at : {QPointF(1, 1), QPointF(1, 32), QPointF(48, 1), QPointF(48, 32)}) {
        click(onWindow(pill(), at));
        EXPECT_TRUE(form().isArtExpanded) << at.x() << ", " << at.y();
        settle();
        click(item("panelLine"));
        settle();
    }
    for (const QPointF at : {QPointF(50, 20), QPointF(20, 34)}) {
        const bool before = form().isMinimized;
        click(onWindow(pill(), at));
        EXPECT_FALSE(form().isArtExpanded) << at.x() << ", " << at.y();
        EXPECT_NE(form().isMinimized, before);
        settle();
        click(onWindow(pill(), {130, 12}));
        settle();
    }
}

TEST_F(PillTap, TwiceOnTheArtworkOnlyClosesThePanel) {
    openArtPanel();
    const QPoint at = middle(artwork());
    for (const double pause : {0.0, 0.05, 0.1, 0.2}) {
        click(at);
        ASSERT_FALSE(form().isArtExpanded);
        step(0);
        step(pause);
        click(at);
        EXPECT_FALSE(form().isArtExpanded) << pause;
        EXPECT_FALSE(form().isMinimized) << pause;
        settle();
        openArtPanel();
    }
}

TEST_F(PillTap, OnTheArtworkClosesThePanel) {
    openArtPanel();
    ASSERT_TRUE(form().isArtExpanded);
    click(artwork());
    EXPECT_FALSE(form().isArtExpanded);
    EXPECT_FALSE(form().isMinimized);
}

TEST_F(PillTap, OnTheLineOfThePanelClosesItToo) {
    openArtPanel();
    click(item("panelLine"));
    EXPECT_FALSE(form().isArtExpanded);
}

TEST_F(PillTap, OnTheIndicatorPlaysAndPauses) {
    machine.appear();
    click(waveform());
    EXPECT_EQ(toggles(), 1U);
    EXPECT_TRUE(machine.view.nowPlaying().isPlaying.get());
    click(waveform());
    EXPECT_EQ(toggles(), 2U);
    EXPECT_FALSE(form().isArtExpanded);
}

TEST_F(PillTap, NinePointsBesideTheIndicatorCountsAsOnIt) {
    machine.appear();
    std::size_t taps = 0;
    for (const QPointF beside :
         {QPointF(-9, 8), QPointF(25, 8), QPointF(8, 25), QPointF(-9, 25), QPointF(25, 25)}) {
        click(onWindow(waveform(), beside));
        EXPECT_EQ(toggles(), ++taps) << beside.x() << ", " << beside.y();
    }
}

TEST_F(PillTap, ElevenPointsBesideTheIndicatorDoesNot) {
    machine.appear();
    bool minimized = false;
    for (const QPointF beside : {QPointF(-11, 8), QPointF(8, 27)}) {
        click(onWindow(waveform(), beside));
        minimized = !minimized;
        EXPECT_EQ(form().isMinimized, minimized) << beside.x() << ", " << beside.y();
    }
    EXPECT_EQ(toggles(), 0U);
}

TEST_F(PillTap, OnTheIndicatorOfThePanelKeepsItOpen) {
    machine.appear();
    openArtPanel();
    click(waveform());
    EXPECT_EQ(toggles(), 1U);
    EXPECT_TRUE(form().isArtExpanded);
}

TEST_F(PillTap, OnTheGrabberMinimizesOnceAndNotTwice) {
    machine.appear();
    lift();
    click(grabber());
    EXPECT_TRUE(form().isMinimized);
    settle();
    click(grabber());
    EXPECT_FALSE(form().isMinimized);
}

TEST_F(PillTap, ElevenPointsBesideTheGrabberCountsAsOnIt) {
    machine.appear();
    lift();
    bool minimized = false;
    const double right = grabber()->width();
    for (const QPointF beside :
         {QPointF(-11, 3), QPointF(right + 11, 3), QPointF(18, -11), QPointF(18, 18)}) {
        hover(onWindow(grabber(), beside));
        EXPECT_TRUE(form().grabberHovered) << beside.x() << ", " << beside.y();
        click(onWindow(grabber(), beside));
        minimized = !minimized;
        EXPECT_EQ(form().isMinimized, minimized);
        settle();
    }
    hover(onWindow(grabber(), {-14, 3}));
    EXPECT_FALSE(form().grabberHovered);
}

TEST_F(PillTap, OnTheGrabberOfThePanelClosesItAndMinimizesNothing) {
    machine.appear();
    openArtPanel();
    click(grabber());
    EXPECT_FALSE(form().isArtExpanded);
    EXPECT_FALSE(form().isMinimized);
}

TEST_F(PillTap, OfTheMiddleButtonDoesNothing) {
    machine.appear();
    for (auto* piece : {pill(), artwork(), waveform()})
        click(middle(piece), Qt::MiddleButton);
    EXPECT_FALSE(form().isMinimized);
    EXPECT_FALSE(form().isArtExpanded);
    EXPECT_EQ(toggles(), 0U);
}

TEST_F(PillTap, WhileThePillStillMovesCounts) {
    machine.appear();
    click(artwork());
    step(0.1);
    click(artwork());
    EXPECT_FALSE(form().isArtExpanded);
    step(0.05);
    click(onWindow(pill(), {130, 12}));
    EXPECT_TRUE(form().isMinimized);
}

TEST_F(PillTap, TakenBackBesideThePieceDoesNothing) {
    machine.appear();
    auto expected = form();
    expected.waveformHovered = true; // the pointer ended there
    QTest::mousePress(&window, Qt::LeftButton, {}, middle(artwork()));
    QTest::mouseRelease(&window, Qt::LeftButton, {}, middle(waveform()));
    machine.runTurns();
    EXPECT_EQ(form(), expected);
    EXPECT_EQ(toggles(), 0U);
}

TEST_F(PillTap, TwiceInARowIsTwoTaps) {
    machine.appear();
    QTest::mouseDClick(&window, Qt::LeftButton, {}, middle(waveform()));
    machine.runTurns();
    EXPECT_EQ(toggles(), 2U);
}

class PillHover : public test::Stage {};

TEST_F(PillHover, EndsWhenThePointerIsDraggedAway) {
    machine.appear();
    hover(artwork());
    QTest::mousePress(&window, Qt::LeftButton, {}, middle(artwork()));
    hover(onWindow(pill(), {130, 45}));
    EXPECT_FALSE(form().coverHovered);
    hover(artwork());
    EXPECT_TRUE(form().coverHovered);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, middle(artwork()));
    machine.runTurns();
    EXPECT_TRUE(form().isArtExpanded);
}

TEST_F(PillHover, OfThePiecesComesAndGoes) {
    machine.appear();
    machine.movePointer(test::View::overThePill);
    settle();
    hover(artwork());
    EXPECT_TRUE(form().coverHovered);
    hover(waveform());
    EXPECT_FALSE(form().coverHovered);
    EXPECT_TRUE(form().waveformHovered);
    hover(grabber());
    EXPECT_FALSE(form().waveformHovered);
    EXPECT_TRUE(form().grabberHovered);
    hover(onWindow(pill(), {60, 45}));
    EXPECT_FALSE(form().grabberHovered);
}

TEST_F(PillHover, OfTheIndicatorReachesTenPointsBesideIt) {
    machine.appear();
    hover(onWindow(waveform(), {-9, 8}));
    EXPECT_TRUE(form().waveformHovered);
    hover(onWindow(waveform(), {-11, 8}));
    EXPECT_FALSE(form().waveformHovered);
}

TEST_F(PillHover, OfTheCoverDoesNotOutlastThePanelThatItOpens) {
    machine.appear();
    hover(artwork());
    ASSERT_TRUE(form().coverHovered);
    click(artwork());
    settle();
    hover(item("panelLine"));
    click(item("panelLine"));
    settle();
    ASSERT_FALSE(form().isArtExpanded);
    EXPECT_FALSE(form().coverHovered) << "the pointer is far below the thumbnail";
}

TEST_F(PillHover, OfTheCoverNeverBeginsOnTheArtworkInFlight) {
    machine.appear();
    click(artwork());
    settle();
    const QPoint at = middle(artwork());
    hover(at);
    click(at);
    step(0);
    for (int frame = 0; frame < 40; ++frame) {
        step(0.016);
        hover(at + QPoint(frame % 2, 0));
        EXPECT_FALSE(form().coverHovered) << frame;
    }
}

TEST_F(PillHover, OfTheThumbnailIsOnceMoreKnownWhenThePanelHasClosed) {
    machine.appear();
    hover(artwork());
    click(artwork());
    settle();
    click(item("panelLine"));
    settle();
    hover(artwork());
    EXPECT_TRUE(form().coverHovered);
}

} // namespace
} // namespace brellowind
