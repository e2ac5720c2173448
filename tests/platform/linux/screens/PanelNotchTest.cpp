// SPDX-License-Identifier: MIT

#include "platform/linux/screens/PanelNotch.h"

#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

TEST(PanelNotch, IsWhatTheKnownPanelsHaveBeyondTheirPictureOf16To10) {
    EXPECT_EQ(notchInset("eDP-1", {3024, 1964}, 1), 74);
    EXPECT_EQ(notchInset("eDP-1", {3456, 2234}, 1), 74);
    EXPECT_EQ(notchInset("eDP-1", {2560, 1664}, 1), 64);
    EXPECT_EQ(notchInset("eDP-1", {2880, 1864}, 1), 64);
}

TEST(PanelNotch, IsInPoints) {
    EXPECT_EQ(notchInset("eDP-1", {3024, 1964}, 2), 37);
    EXPECT_EQ(notchInset("eDP-1", {2560, 1664}, 1.25), 51.2);
}

TEST(PanelNotch, IsRecognisedThoughTheToolkitRoundsTheSizeToPoints) {
    // 3024 / 1.75 = 1728 and 1964 / 1.75 = 1122.3, so 1122 points, which are 1963.5 pixels.
    EXPECT_EQ(notchInset("eDP-1", {3024, 1963.5}, 1.75), 74 / 1.75);
    EXPECT_EQ(notchInset("eDP-1", {3024, 1963}, 1), 0);
}

TEST(PanelNotch, IsOnInternalPanelsOnly) {
    EXPECT_EQ(notchInset("eDP", {3024, 1964}, 1), 74);
    EXPECT_EQ(notchInset("LVDS-1", {3024, 1964}, 1), 74);
    EXPECT_EQ(notchInset("DSI-1", {3024, 1964}, 1), 74);
    EXPECT_EQ(notchInset("DP-1", {3024, 1964}, 1), 0);
    EXPECT_EQ(notchInset("HDMI-A-1", {3024, 1964}, 1), 0);
    EXPECT_EQ(notchInset("HDMI-eDP", {3024, 1964}, 1), 0);
    EXPECT_EQ(notchInset("", {3024, 1964}, 1), 0);
}

TEST(PanelNotch, IsAbsentInAnyOtherMode) {
    EXPECT_EQ(notchInset("eDP-1", {3024, 1890}, 1), 0); // the notch hidden
    EXPECT_EQ(notchInset("eDP-1", {1920, 1200}, 1), 0);
    EXPECT_EQ(notchInset("eDP-1", {2256, 1504}, 1), 0); // 3:2
    EXPECT_EQ(notchInset("eDP-1", {1964, 3024}, 1), 0); // rotated
    EXPECT_EQ(notchInset("eDP-1", {0, 0}, 1), 0);
}

} // namespace
} // namespace brellowind::platform
