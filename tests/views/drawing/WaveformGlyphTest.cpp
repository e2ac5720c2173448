// SPDX-License-Identifier: MIT

#include "views/drawing/WaveformGlyph.h"
#include "views/Painting.h"
#include "views/scene/SceneWindow.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTest>
#include <QTimerEvent>
#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <utility>

namespace brellowind {
namespace {

constexpr int bars = 5;
constexpr int stepsInARound = 15;

bool ticks(WaveformGlyph& glyph) {
    return !QAbstractEventDispatcher::instance()->registeredTimers(&glyph).isEmpty();
}

QImage paintedGlyph(WaveformGlyph& glyph) {
    glyph.setSize({16, 16});
    return test::painted(glyph, {16, 16}, {}, 4);
}

/// The opacity in the middle of each bar.
std::vector<int> opacities(const QImage& image) {
    std::vector<int> result;
    for (int i = 0; i < bars; ++i)
        result.push_back(qAlpha(image.pixel(8 + i * 12, image.height() / 2)));
    return result;
}

/// The opacities of the bars in every step of the loop.
std::vector<std::vector<int>> round() {
    WaveformGlyph glyph;
    glyph.setActive(true);
    std::vector<std::vector<int>> steps;
    for (int step = 0; step < stepsInARound; ++step) {
        glyph.setStep(step);
        steps.push_back(opacities(paintedGlyph(glyph)));
    }
    return steps;
}

TEST(WaveformGlyph, IsSharpWhereverItStandsAndHoweverItIsScaled) {
    for (const double ratio : {1.0, 1.25, 2.0})
        for (const double scale : {1.0, 1.03, 1.0918})
            for (const double shift : {0.0, 0.3, 0.5, 0.8}) {
                WaveformGlyph glyph;
                glyph.setSize({16, 16});
                const QImage image = test::painted(
                    {40, 40},
                    [&](QPainter& painter) {
                        painter.translate(10 + shift, 10 + shift);
                        painter.scale(scale, scale);
                        glyph.paint(painter);
                    },
                    ratio);
                // The widths of bars and gaps, alternating, across the middle.
                std::vector<int> widths;
                const int y = static_cast<int>((10 + shift + 8 * scale) * ratio);
                bool inBar = false;
                for (int x = 0; x < image.width(); ++x) {
                    const int alpha = qAlpha(image.pixel(x, y));
                    ASSERT_TRUE(alpha == 0 || alpha == 255)
                        << alpha << " at " << x << ": " << ratio << ' ' << scale << ' ' << shift;
                    if (std::exchange(inBar, alpha == 255) != inBar)
                        widths.push_back(0);
                    if (!widths.empty())
                        ++widths.back();
                }
                ASSERT_EQ(widths.size(), 2U * bars);
                for (std::size_t i = 2; i + 1 < widths.size(); ++i)
                    EXPECT_EQ(widths[i], widths[i - 2]) << ratio << ' ' << scale << ' ' << shift;
            }
}

TEST(WaveformGlyph, HasBarsOfDifferentHeights) {
    WaveformGlyph glyph;
    const QImage image = paintedGlyph(glyph);
    const double shares[bars] = {0.36, 0.74, 1, 0.56, 0.28};
    for (int i = 0; i < bars; ++i) {
        int height = 0;
        for (int y = 0; y < image.height(); ++y)
            height += qAlpha(image.pixel(8 + i * 12, y)) > 0;
        EXPECT_NEAR(height, shares[i] * image.height(), 1.5) << i;
    }
}

TEST(WaveformGlyph, MakesTenStepsASecond) {
    WaveformGlyph glyph;
    glyph.setActive(true);
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&glyph);
    ASSERT_EQ(timers.size(), 1);
    EXPECT_EQ(timers.first().interval, 100);
}

TEST(WaveformGlyph, IsNeverGone) {
    for (const auto& step : round())
        EXPECT_GE(std::ranges::min(step), 0.3 * 255);
}

TEST(WaveformGlyph, LetsItsWaveRunThroughTheBarsOneAfterTheOther) {
    std::vector<std::ptrdiff_t> order;
    for (const auto& step : round()) {
        const auto strongest = std::ranges::max_element(step);
        if (*strongest > 0.9 * 255 && (order.empty() || order.back() != strongest - step.begin()))
            order.push_back(strongest - step.begin());
    }
    EXPECT_EQ(order, (std::vector<std::ptrdiff_t>{0, 1, 2, 3, 4}));
}

TEST(WaveformGlyph, StandsStillAndEvenWhileItIsNotActive) {
    WaveformGlyph glyph;
    EXPECT_FALSE(ticks(glyph));
    EXPECT_EQ(opacities(paintedGlyph(glyph)), std::vector<int>(bars, 255));
}

TEST(WaveformGlyph, TicksOnlyWhileItIsActiveAndVisible) {
    WaveformGlyph glyph;
    glyph.setActive(true);
    EXPECT_TRUE(ticks(glyph));
    glyph.setVisible(false);
    EXPECT_FALSE(ticks(glyph));
    glyph.setActive(false);
    glyph.setVisible(true);
    EXPECT_FALSE(ticks(glyph));
    glyph.setVisible(false);
    glyph.setActive(true);
    EXPECT_FALSE(ticks(glyph));
    glyph.setVisible(true);
    EXPECT_TRUE(ticks(glyph));
    glyph.setActive(false);
    EXPECT_FALSE(ticks(glyph));
}

TEST(WaveformGlyph, HidesWithItsParent) {
    Item parent;
    WaveformGlyph glyph(&parent);
    glyph.setActive(true);
    parent.setVisible(false);
    EXPECT_FALSE(ticks(glyph));
}

TEST(WaveformGlyph, ShowsTheWaveWhileItIsActive) {
    WaveformGlyph glyph;
    glyph.setActive(true);
    std::set<std::vector<int>> looks;
    for (int i = 0; i < 15; ++i) {
        looks.insert(opacities(paintedGlyph(glyph)));
        const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&glyph);
        ASSERT_EQ(timers.size(), 1);
        QTimerEvent tick(timers[0].timerId);
        QCoreApplication::sendEvent(&glyph, &tick);
    }
    EXPECT_GT(looks.size(), 8U);
    EXPECT_TRUE(looks.contains(opacities(paintedGlyph(glyph)))) << "a round later it begins anew";
}

TEST(WaveformGlyph, AsksForAFrameOnlyWhereTheWaveLooksOtherThanBefore) {
    SceneWindow window;
    window.resize(16, 16);
    WaveformGlyph glyph(&window.root());
    glyph.setSize({16, 16});
    glyph.setActive(true);
    window.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.isExposed(); }));
    int frames = 0;
    QObject::connect(&window, &SceneWindow::frameShown, [&] { ++frames; });
    const auto frameAtStep = [&](int step) {
        glyph.setStep(step);
        frames = 0;
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        return frames;
    };
    frameAtStep(0);
    QImage shown = window.grab();
    int same = 0;
    for (int step = 1; step <= 15; ++step) {
        const int made = frameAtStep(step);
        const QImage now = window.grab();
        EXPECT_EQ(made, now == shown ? 0 : 1) << step;
        same += now == shown ? 1 : 0;
        shown = now;
    }
    EXPECT_GE(same, 1) << "while the wave is out of the symbol";
}

TEST(WaveformGlyph, StandsInTheMiddleOfItsRectangle) {
    WaveformGlyph glyph;
    glyph.setSize({16, 16});
    EXPECT_EQ(test::inkRect(test::painted(glyph, {40, 40}, {10, 10})), QRect(11, 10, 14, 16));
}

} // namespace
} // namespace brellowind
