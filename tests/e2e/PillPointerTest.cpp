// SPDX-License-Identifier: MIT

#include "e2e/PillFixture.h"

#include <QDBusMessage>

namespace brellowind::test {
namespace {

constexpr std::chrono::milliseconds aWhile{300};

/// The margin of the hover area beside and below the pill.
constexpr int margin = 8;

class PillPointer : public PillOnDesktop {
protected:
    /// The laid-out rectangle of the pill on the screen, without scaling.
    QRect pill() {
        const QSize size = program->pillSize().toSize();
        return {(screenSize.width() - size.width()) / 2, 0, size.width(), size.height()};
    }

    bool staysOutside() {
        runFor(aWhile);
        return !program->is("hovered");
    }

    /// Moves over an edge and back: `inside` and `outside` are adjacent pixels.
    void expectEdge(QPoint inside, QPoint outside) {
        person.pointAt(outside);
        EXPECT_TRUE(staysOutside()) << outside.x() << ", " << outside.y();
        person.pointAt(inside);
        EXPECT_TRUE(program->becomes("hovered")) << inside.x() << ", " << inside.y();
        person.pointAt(outside);
        EXPECT_TRUE(program->becomes("hovered", false));
        EXPECT_TRUE(program->comesToRest());
    }
};

TEST_F(PillPointer, IsInsideUpToEightPointsBesideThePill) {
    startSinging();
    const QRect at = pill();
    expectEdge({at.left() - margin, 20}, {at.left() - margin - 1, 20});
    expectEdge({at.right() + margin, 20}, {at.right() + margin + 1, 20});
}

TEST_F(PillPointer, IsInsideFromTheVeryTopToEightPointsBelowThePill) {
    startSinging();
    const int below = pill().bottom() + margin;
    person.pointAt({720, below + 1});
    EXPECT_TRUE(staysOutside());
    person.pointAt({720, 0});
    EXPECT_TRUE(program->becomes("hovered"));
    leavePill();
    person.pointAt({720, below});
    EXPECT_TRUE(program->becomes("hovered"));
}

TEST_F(PillPointer, ThatDragsSomethingIsOutsideUntilTheButtonIsUpAndItMoves) {
    startSinging();
    person.pointAt({100, 500});
    person.hold();
    person.pointAt({720, 20});
    EXPECT_TRUE(staysOutside());
    person.release();
    EXPECT_TRUE(staysOutside());
    person.pointAt({721, 20});
    EXPECT_TRUE(program->becomes("hovered"));
}

TEST_F(PillPointer, StaysInsideOverThePillThatGrewUnderIt) {
    startSinging();
    const int before = pill().bottom() + margin;
    enterPill();
    const int after = pill().bottom() + margin;
    ASSERT_GT(after, before) << "the grabber makes the pill higher";
    person.pointAt({720, after});
    runFor(aWhile);
    EXPECT_TRUE(program->is("hovered"));
    person.pointAt({720, after + 1});
    EXPECT_TRUE(program->becomes("hovered", false));
}

TEST_F(PillPointer, PressesFallThroughEverywhereButOnThePill) {
    auto& window = below();
    startSinging();
    EXPECT_EQ(window.presses(), 0);
    const QRect at = pill();
    // One by one: a window manager intercepts a press and replays it later.
    for (const QPoint beside : {QPoint(at.left() - 30, 20), QPoint(720, 200)}) {
        person.pressAt(beside);
        EXPECT_TRUE(waitUntil([&] { return window.presses() == 1; }));
    }
    enterPill();
    person.press();
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_EQ(window.presses(), 0);
    leavePill();
    person.pressAt({720, 200});
    EXPECT_TRUE(waitUntil([&] { return window.presses() == 1; }));
}

TEST_F(PillPointer, WithinTheMarginBesideThePillPressesFallThrough) {
    auto& window = below();
    startSinging();
    enterPill();
    person.pressAt({pill().left() - margin, 40});
    EXPECT_TRUE(waitUntil([&] { return window.presses() == 1; }));
    EXPECT_TRUE(program->is("hovered"));
    EXPECT_FALSE(program->is("isMinimized"));
}

TEST_F(PillPointer, ATapOnTheBackgroundMinimisesAndRestores) {
    startSinging();
    enterPill();
    const int whole = pill().height();
    person.press();
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_LT(pill().height(), whole);
    person.pressAt({720, 10});
    EXPECT_TRUE(program->becomes("isMinimized", false));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_EQ(pill().height(), whole);
}

TEST_F(PillPointer, ATapOnTheCoverOpensThePanelAndATapOnThePanelClosesIt) {
    startSinging();
    enterPill();
    person.pointAt(middleOf("artwork"));
    EXPECT_TRUE(program->becomes("coverHovered"));
    person.press();
    EXPECT_TRUE(program->becomes("isArtExpanded"));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_EQ(pill().width(), 352);
    EXPECT_EQ(program->size("artwork").height(), 320);
    EXPECT_EQ(program->panelText(), QStringLiteral("line"));
    person.pressAt(middleOf("artwork"));
    EXPECT_TRUE(program->becomes("isArtExpanded", false));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_LT(pill().height(), 100);
}

TEST_F(PillPointer, ATapOnTheGrabberMinimisesOrClosesThePanel) {
    startSinging();
    enterPill();
    person.pointAt(middleOf("grabber"));
    EXPECT_TRUE(program->becomes("grabberHovered"));
    person.press();
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_TRUE(program->comesToRest());
    person.pressAt(middleOf("grabber"));
    EXPECT_TRUE(program->becomes("isMinimized", false));
    EXPECT_TRUE(program->comesToRest());
    person.pressAt(middleOf("artwork"));
    EXPECT_TRUE(program->becomes("isArtExpanded"));
    EXPECT_TRUE(program->comesToRest());
    person.pressAt(middleOf("grabber"));
    EXPECT_TRUE(program->becomes("isArtExpanded", false));
}

TEST_F(PillPointer, ATapOnTheWaveformPausesAndPlaysThePlayer) {
    startSinging();
    enterPill();
    const QPoint waveform = middleOf("waveform");
    person.pointAt(waveform);
    EXPECT_TRUE(program->becomes("waveformHovered"));
    person.press();
    EXPECT_TRUE(program->becomes("isPlaying", false));
    EXPECT_TRUE(waitUntil([&] { return player->status() == QStringLiteral("Paused"); }));
    EXPECT_FALSE(program->is("isMinimized")) << "the pointer is over it";
    person.pressAt(waveform + QPoint(15, 0));
    EXPECT_TRUE(program->becomes("isPlaying"));
    EXPECT_TRUE(waitUntil([&] { return player->status() == QStringLiteral("Playing"); }));
}

TEST_F(PillPointer, APauseMinimisesThePillThatNobodyPointsAtAndPlayingBringsItBack) {
    startSinging();
    player->setStatus("Paused");
    EXPECT_TRUE(program->becomes("isMinimized"));
    player->setStatus("Playing");
    EXPECT_TRUE(program->becomes("isMinimized", false));
}

TEST_F(PillPointer, APauseLeavesThePillAloneThatThePointerIsOver) {
    startSinging();
    enterPill();
    player->setStatus("Paused");
    EXPECT_TRUE(program->becomes("isPlaying", false));
    runFor(aWhile);
    EXPECT_FALSE(program->is("isMinimized"));
}

} // namespace
} // namespace brellowind::test
