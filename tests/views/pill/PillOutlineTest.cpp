// SPDX-License-Identifier: MIT

#include "views/pill/Stage.h"

#include "support/PrintGeometry.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace brellowind {
namespace {

class PillOutline : public test::Stage {
protected:
    PillOutline() {
        machine.appear();
        settle();
        draw();
    }

    void draw() { window.grab(); }

    /// The start of the overlay's outline, its top left corner.
    Point corner() const {
        const auto& elements = windowSystem.overlay->outline.elements();
        return elements.front().to;
    }

    Point pillsCorner() const {
        const QPointF corner = pill()->transform().map(QPointF(0, 0));
        return {corner.x(), corner.y()};
    }
};

TEST_F(PillOutline, IsThatOfThePill) {
    EXPECT_EQ(corner(), pillsCorner());
    const auto last = windowSystem.overlay->outline.elements().size() - 2; // before it is closed
    const auto end = windowSystem.overlay->outline.elements().at(last).to;
    const QPointF topRight = pill()->transform().map(pill()->boundingRect().topRight());
    EXPECT_EQ(end, (Point{topRight.x(), topRight.y()}));
}

TEST_F(PillOutline, ComesWithTheWholeRectangleAndTheReachesOfTheButtons) {
    machine.view.tapBackground(); // the grabber extends beyond the minimised pill
    machine.movePointer(test::View::overThePill);
    settle();
    draw();
    const auto reaches = [this](QPointF at) { // from a corner of the laid out pill
        const QPointF place = pill()->transform().map(at);
        return std::ranges::any_of(windowSystem.overlay->inputRects, [place](const Rect& rect) {
            return rect.contains({place.x(), place.y()});
        });
    };
    const double right = pill()->width();
    const double bottom = pill()->height();
    for (const QPointF corner : {QPointF(1, 1), QPointF(right - 1, 1), QPointF(1, bottom - 1),
                                 QPointF(right - 1, bottom - 1)})
        EXPECT_TRUE(reaches(corner)) << corner.x() << ", " << corner.y();
    EXPECT_TRUE(reaches({right / 2, bottom + 3})) << "below the grabber";
    EXPECT_FALSE(reaches({right / 2, bottom + 5}));
    EXPECT_FALSE(reaches({40, bottom + 1}));
    EXPECT_FALSE(reaches({-1, 10}));
}

TEST_F(PillOutline, FollowsThePillInEveryFrameOfItsMotion) {
    machine.movePointer(test::View::overThePill);
    Point before = corner();
    step(0);
    for (int frame = 0; frame < 3; ++frame) {
        step(0.05);
        draw();
        EXPECT_NE(corner(), before);
        EXPECT_EQ(corner(), pillsCorner());
        before = corner();
    }
}

TEST_F(PillOutline, IsNotToldAgainWhileThePillRests) {
    const int before = windowSystem.overlay->outlines;
    draw();
    EXPECT_EQ(windowSystem.overlay->outlines, before);
}

} // namespace
} // namespace brellowind
