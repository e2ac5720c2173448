// SPDX-License-Identifier: MIT

#include "notch/NotchMetrics.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

TEST(NotchMetrics, HoldsTheMeasuresThatTheNotchIsBuiltFrom) {
    EXPECT_EQ(NotchMetrics::windowHeight, 540);
    EXPECT_EQ(NotchMetrics::collapsedHeight, 59);
    EXPECT_EQ(NotchMetrics::panelHeight, 220);
    EXPECT_EQ(NotchMetrics::panelWidth, 460);
}

} // namespace
} // namespace brellowind
