// SPDX-License-Identifier: MIT

#include "views/pill/PillMotion.h"

#include "foundation/Spring.h"
#include "views/RootViewFixture.h"
#include "views/pill/PillContent.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

constexpr SpringParameters hoverSpring{.response = 0.34, .dampingFraction = 0.82};
constexpr SpringParameters morph{.response = 0.42, .dampingFraction = 0.72};
constexpr SpringParameters pulseRise{.response = 0.1, .dampingFraction = 0.5};
constexpr SpringParameters pulseFall{.response = 0.24, .dampingFraction = 0.7};

constexpr double narrow = 232;
constexpr double wide = 300;

class PillMotionTest : public testing::Test {
protected:
    /// Starts the motion to the content and lets `seconds` pass.
    void moveFor(double seconds, double widthOfLine = narrow) {
        motion.setTargets(content, widthOfLine);
        motion.advance(now);
        motion.advance(now += seconds);
    }

    void expectOn(const SpringValue& value, const SpringParameters& parameters, double from,
                  double to) const {
        Spring expected(parameters, from);
        expected.retarget(to, 0);
        EXPECT_DOUBLE_EQ(value.value(), expected.value(now));
    }

    test::View machine;
    PillContent content{machine.view};
    PillMotion motion{content, narrow};
    double now = 0;
};

TEST_F(PillMotionTest, OfEveryHoverHasTheSpringOfHovers) {
    content.form.hovered = true;
    content.form.coverHovered = true;
    content.form.waveformHovered = true;
    content.form.grabberHovered = true;
    moveFor(0.05);
    for (const auto* value : {&motion.hover, &motion.thumbnail, &motion.indicator, &motion.grabber})
        expectOn(*value, hoverSpring, 0, 1);
}

TEST_F(PillMotionTest, OfTheShapeHasTheSpringOfMorphs) {
    content.form.isMinimized = true;
    content.form.isArtExpanded = true;
    moveFor(0.05);
    expectOn(motion.unfold, morph, 1, 0);
    expectOn(motion.expand, morph, 0, 1);
}

TEST_F(PillMotionTest, OfTheWidthHasTheSpringOfMorphs) {
    moveFor(0.05, wide);
    expectOn(motion.lineWidth, morph, narrow, wide);
}

TEST_F(PillMotionTest, OfThePulseRisesAndFallsWithItsOwnSprings) {
    content.form.playPulse = true;
    moveFor(0.05);
    expectOn(motion.pulse, pulseRise, 1, 1.06);
    moveFor(1);
    content.form.playPulse = false;
    const double fall = now;
    moveFor(0.05);
    Spring expected(pulseFall, 1.06);
    expected.retarget(1, fall);
    EXPECT_NEAR(motion.pulse.value(), expected.value(now), 1e-9);
}

} // namespace
} // namespace brellowind
