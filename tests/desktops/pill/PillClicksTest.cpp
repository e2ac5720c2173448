// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

#include <algorithm>

namespace brellowind::test {
namespace {

/// A button that the pill ignores.
constexpr int middleButton = 0x112;

/// The pill's corners are round.
constexpr double edge = 16;

class PillClicks : public PillOnCompositor {
protected:
    /// Places every 40 points in the area of the pill's window that `wanted` holds for.
    QList<QPointF> grid(const std::function<bool(QPointF)>& wanted) const {
        QList<QPointF> places;
        const QRectF area = this->area();
        for (double y = area.top(); y < area.bottom(); y += 40)
            for (double x = area.left(); x < area.right(); x += 40)
                if (wanted({x, y}))
                    places.append({x, y});
        return places;
    }

    QList<QPointF> beside() {
        const QRectF pill = place("pill");
        return grid([&](QPointF at) { return !pill.adjusted(-1, -1, 1, 1).contains(at); });
    }

    QList<QPointF> onPill() {
        const QRectF pill = place("pill");
        return grid([&](QPointF at) { return pill.adjusted(edge, -1, -edge, -edge).contains(at); });
    }

    void click(QPointF place) { compositor->click(place, middleButton); }

    /// The positions of presses on the window below since the last call, up to one far from the
    /// pill.
    QList<QPointF> reached() {
        const QPointF last = screen().bottomRight() - QPoint(5, 5);
        click(last);
        QList<QPointF> places;
        EXPECT_TRUE(waitUntil([&] {
            for (const auto& press : below().takePresses())
                places.append(press.place);
            return places.contains(last);
        }));
        places.removeLast();
        return places;
    }
};

TEST_F(PillClicks, BesideThePillReachTheWindowBelowAtTheirPlace) {
    below();
    startSinging();
    const auto places = beside();
    ASSERT_GT(places.size(), 150);
    for (const QPointF at : places)
        click(at);
    EXPECT_EQ(reached(), places);
    EXPECT_FALSE(program->is("hovered"));
}

TEST_F(PillClicks, BesideTheHoveredPillReachTheWindowBelowAtTheirPlace) {
    below();
    startSinging();
    enterPill();
    const auto places = beside();
    ASSERT_GT(places.size(), 150);
    for (const QPointF at : places) {
        ASSERT_TRUE(hoverPill());
        click(at);
    }
    EXPECT_EQ(reached(), places);
}

TEST_F(PillClicks, BesideThePanelReachTheWindowBelowWhileItIsOpenAndAfterwards) {
    below();
    startSinging();
    enterPill();
    compositor->click(middleOf("artwork"));
    EXPECT_TRUE(program->becomes("isArtExpanded"));
    EXPECT_TRUE(program->comesToRest());
    const auto places = beside();
    ASSERT_GT(places.size(), 80);
    for (const QPointF at : places)
        click(at);
    EXPECT_EQ(reached(), places);
    const auto covered = onPill();
    ASSERT_GT(covered.size(), 40);
    for (const QPointF at : covered)
        click(at);
    EXPECT_EQ(reached(), QList<QPointF>());

    compositor->click(middleOf("artwork"));
    EXPECT_TRUE(program->becomes("isArtExpanded", false));
    leavePill();
    const auto placesAfterwards = beside();
    ASSERT_GT(placesAfterwards.size(), 150);
    for (const QPointF at : placesAfterwards)
        click(at);
    EXPECT_EQ(reached(), placesAfterwards);
}

TEST_F(PillClicks, OnThePillNeverReachTheWindowBelow) {
    below();
    startSinging();
    for (int round = 0; round < 2; ++round) { // the first comes to the pill at rest
        const auto places = onPill();
        ASSERT_GE(places.size(), 4);
        for (const QPointF at : places)
            click(at);
        EXPECT_EQ(reached(), QList<QPointF>());
        enterPill();
    }
}

} // namespace
} // namespace brellowind::test
