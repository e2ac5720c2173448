// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

constexpr int lowWindow = 128; ///< points that the pill without its panel may need

class PillPointer : public PillOnCompositor {
protected:
    void openPanel() {
        compositor->click(middleOf("artwork"));
        EXPECT_TRUE(program->becomes("isArtExpanded"));
        EXPECT_TRUE(program->comesToRest());
    }
};

TEST_F(PillPointer, OverThePillHoversItUntilItMovesAway) {
    startSinging();
    EXPECT_FALSE(program->is("hovered"));
    enterPill();
    leavePill();
    EXPECT_TRUE(hoverPill());
    compositor->movePointerBy({place("pill").width(), 0});
    EXPECT_TRUE(program->becomes("hovered", false));
}

TEST_F(PillPointer, BesideThePillDoesNotHoverIt) {
    startSinging();
    const QRectF pill = place("pill");
    for (const QPointF beside : {pill.center() + QPointF(pill.width() / 2 + 30, 0),
                                 pill.center() + QPointF(0, pill.height() + 20)}) {
        compositor->movePointerTo(beside);
        runFor(std::chrono::milliseconds(200));
        EXPECT_FALSE(program->is("hovered")) << beside.x() << ", " << beside.y();
    }
}

TEST_F(PillPointer, OverThePillLiftsItWithAWholeShadow) {
    below();
    startSinging();
    const QRect atRest = silhouette(picture());
    enterPill();
    const QRectF pill = place("pill");
    // Nearly black at the pill, faded out at the end of the surface.
    EXPECT_TRUE(shows("hovered", [&](const Picture& picture) {
        const QRect seen = silhouette(picture);
        const QColor shadow = picture.at({pill.center().x(), pill.bottom() + 5});
        return seen.height() > atRest.height() + 10 && shadow.blue() > 0 &&
               shadow.blue() < colourBelow().blue();
    }));
    const Picture seen = picture();
    const QRect shadow = silhouette(seen);
    EXPECT_LT(shadow.bottom(), lowWindow - 1) << "not cut off";
    for (const int x : {int(pill.left()), int(pill.center().x()), int(pill.right())})
        for (int y = int(pill.bottom()) + 2; y <= shadow.bottom(); ++y)
            EXPECT_LE(std::abs(seen.at(QPointF(x, y)).blue() - seen.at(QPointF(x, y + 1)).blue()),
                      12)
                << x << ", " << y;
    leavePill();
    EXPECT_TRUE(
        shows("left", [&](const Picture& picture) { return silhouette(picture) == atRest; }));
}

TEST_F(PillPointer, ATapOnTheBackgroundMinimisesAndRestores) {
    below();
    startSinging();
    enterPill();
    const double whole = program->pillSize().height();
    compositor->click(background());
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_LT(program->pillSize().height(), whole);
    EXPECT_TRUE(shows("minimised", [&](const Picture& picture) {
        return picture.at({640, whole - 8}).blue() > 30; // the shadow, and no longer the pill
    }));
    compositor->click({640, 10});
    EXPECT_TRUE(program->becomes("isMinimized", false));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_EQ(program->pillSize().height(), whole);
}

TEST_F(PillPointer, ATapOnTheCoverOpensThePanelAndATapOnThePanelClosesIt) {
    below();
    startSinging();
    const QRect atRest = silhouette(picture());
    enterPill();
    openPanel();
    EXPECT_TRUE(shows("panel-open", [&](const Picture& picture) {
        return picture.at({640, lowWindow + 20}) != colourBelow() &&
               silhouette(picture).bottom() >= place("pill").bottom() - 1;
    }));
    compositor->click(middleOf("artwork"));
    EXPECT_TRUE(program->becomes("isArtExpanded", false));
    EXPECT_TRUE(program->comesToRest());
    leavePill();
    EXPECT_TRUE(shows("panel-closed",
                      [&](const Picture& picture) { return silhouette(picture) == atRest; }));
}

TEST_F(PillPointer, ATapOnTheGrabberMinimises) {
    startSinging();
    enterPill();
    compositor->movePointerTo(middleOf("grabber"));
    EXPECT_TRUE(program->becomes("grabberHovered"));
    compositor->click(middleOf("grabber"));
    EXPECT_TRUE(program->becomes("isMinimized"));
}

TEST_F(PillPointer, ATapOnTheWaveformPausesAndPlaysThePlayer) {
    startSinging();
    enterPill();
    const QPointF waveform = middleOf("waveform");
    compositor->movePointerTo(waveform);
    EXPECT_TRUE(program->becomes("waveformHovered"));
    compositor->click(waveform);
    EXPECT_TRUE(waitUntil([&] { return player->status() == QStringLiteral("Paused"); }));
    EXPECT_TRUE(program->becomes("isPlaying", false));
    EXPECT_FALSE(program->is("isMinimized")) << "the pointer is over it";
    compositor->click(waveform + QPointF(15, 0));
    EXPECT_TRUE(waitUntil([&] { return player->status() == QStringLiteral("Playing"); }));
}

} // namespace
} // namespace brellowind::test
