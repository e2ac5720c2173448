// SPDX-License-Identifier: MIT

#include "views/drawing/PillShape.h"

#include "notch/NotchShape.h"
#include "views/Painting.h"
#include "views/scene/SceneWindow.h"

#include <QPainter>
#include <gtest/gtest.h>
#include <random>

namespace brellowind {
namespace {

/// The pill's rectangle in the pictures, with a margin for the shadow.
constexpr QPointF origin(60, 0);
constexpr QSize room(400, 140);

QImage paintedPill(PillShape& pill) {
    return test::painted(pill, room, origin);
}

TEST(PillShape, HasTheOutlineOfTheNotch) {
    PillShape pill;
    pill.setSize({280, 59});
    EXPECT_EQ(pill.outline(), NotchShape(8, 12).path({0, 0, 280, 59}));
}

TEST(PillShape, IsOpaqueBlackAndAllThereIsAtRest) {
    PillShape pill;
    pill.setSize({280, 59});
    const QImage image = paintedPill(pill);
    EXPECT_EQ(test::inkRect(image), QRect(60, 0, 280, 59));
    EXPECT_EQ(image.pixelColor(200, 30), QColor(Qt::black));
    EXPECT_EQ(qAlpha(image.pixel(67, 30)), 0) << "beside the left side";
    EXPECT_EQ(qAlpha(image.pixel(68, 30)), 255);
    EXPECT_EQ(qAlpha(image.pixel(331, 30)), 255);
    EXPECT_EQ(qAlpha(image.pixel(332, 30)), 0) << "beside the right side";
}

TEST(PillShape, LooksInAnyPartAsItDoesInTheWhole) {
    std::mt19937 random(7);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    for (const double ratio : {1.0, 2.0})
        for (const double lift : {0.0, 1.0}) {
            PillShape pill;
            pill.setSize({280, 59});
            pill.setLift(lift);
            const auto paint = [&](const QRect& part) {
                return test::painted(
                    room,
                    [&](QPainter& painter) {
                        painter.setClipRect(part);
                        painter.translate(origin);
                        pill.paint(painter);
                    },
                    ratio);
            };
            const QImage whole = paint(QRect({}, room));
            for (int i = 0; i < 200; ++i) {
                // The left and the lower end about a corner, or anywhere.
                const QPoint corner(60 + below(30), below(4) ? 59 - below(16) : below(100));
                const QRect part(QPoint(corner.x(), below(corner.y() + 1)),
                                 QPoint(corner.x() + below(270), corner.y()));
                const QRect pixels(part.topLeft() * ratio, part.size() * ratio);
                ASSERT_LE(test::largestDifference(paint(part).copy(pixels), whole.copy(pixels)), 1)
                    << part.left() << ' ' << part.top() << ' ' << part.width() << " x "
                    << part.height();
            }
        }
}

TEST(PillShape, PaintsBeyondItsRectangleOnlyWhileItIsLifted) {
    PillShape pill;
    pill.setSize({280, 59});
    const QRectF rect(0, 0, 280, 59);
    EXPECT_EQ(pill.paintedRect(), rect);
    for (const double lift : {0.01, 0.5, 1.0, 1.05}) {
        pill.setLift(lift);
        EXPECT_LT(pill.paintedRect().left(), 0);
        EXPECT_GT(pill.paintedRect().right(), 280);
        EXPECT_GT(pill.paintedRect().bottom(), 59);
        const QRect drawn = test::inkRect(test::painted(pill, {600, 240}, {160, 0}));
        EXPECT_TRUE(pill.paintedRect()
                        .translated(160, 0)
                        .toAlignedRect()
                        .adjusted(0, 0, 0, 1) // an overshoot extends the shadow a little
                        .contains(drawn))
            << lift;
    }
    pill.setLift(0);
    EXPECT_EQ(pill.paintedRect(), rect);
    pill.setLift(-0.02);
    EXPECT_EQ(pill.paintedRect(), rect);
}

TEST(PillShape, CastsAShadowWhoseDropSoftnessAndStrengthGrowWithTheLift) {
    for (const double lift : {0.5, 1.0}) {
        PillShape pill;
        pill.setSize({400, 200}); // so large that the other edges have no influence
        pill.setLift(lift);
        const QImage image = test::painted(pill, {400, 300});
        const int edge = static_cast<int>(200 + 10 * lift);
        const double whole = 255 * 0.5 * lift;
        const auto strength = [&](double deviations) {
            const int y = edge + static_cast<int>(20 * lift * deviations);
            return (qAlpha(image.pixel(200, y - 1)) + qAlpha(image.pixel(200, y))) / 2.0;
        };
        // The normal distribution.
        EXPECT_NEAR(strength(0), whole * 0.5, 2) << lift;
        EXPECT_NEAR(strength(1), whole * 0.159, 2) << lift;
        EXPECT_NEAR(strength(2), whole * 0.023, 1.5) << lift;
    }
}

TEST(PillShape, CastsAShadowThatFadesOutWhereItsWindowEnds) {
    SceneWindow window;
    window.resize(480, 96);
    PillShape pill(&window.root());
    pill.setSize({280, 60});
    pill.setPosition({100, 0});
    pill.setLift(1);
    const QImage image = window.grab();
    int last = qAlpha(image.pixel(240, 61));
    EXPECT_GT(last, 60) << "as strong as ever at the pill";
    for (int y = 62; y < 96; ++y) {
        const int now = qAlpha(image.pixel(240, y));
        EXPECT_LE(now, last) << y;
        EXPECT_GT(now, last - 10) << y;
        last = now;
    }
    EXPECT_LE(last, 1);
    EXPECT_GT(qAlpha(image.pixel(95, 50)), 20) << "beside the pill it is whole";
}

TEST(PillShape, LooksAsBeforeWhenItIsBackAtRest) {
    PillShape pill;
    pill.setSize({280, 59});
    const QImage before = paintedPill(pill);
    pill.setLift(1);
    EXPECT_NE(paintedPill(pill), before);
    pill.setLift(0);
    EXPECT_EQ(paintedPill(pill), before);
}

TEST(PillShape, CastsTheShadowOfItsPresentSize) {
    PillShape pill;
    pill.setSize({200, 40});
    pill.setLift(1);
    paintedPill(pill);
    pill.setSize({280, 59});
    PillShape fresh;
    fresh.setSize({280, 59});
    fresh.setLift(1);
    EXPECT_EQ(paintedPill(pill), paintedPill(fresh));
}

TEST(PillShape, CastsAShadowWithoutSeamsHoweverWideItIs) {
    PillShape pill;
    pill.setSize({900, 59});
    pill.setLift(1);
    const QImage image = test::painted(pill, {1020, 140}, origin);
    for (int x = 200; x < 820; ++x)
        ASSERT_EQ(image.pixel(x, 65), image.pixel(200, 65)) << x;
}

} // namespace
} // namespace brellowind
