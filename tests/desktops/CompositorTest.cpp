// SPDX-License-Identifier: MIT

#include "desktops/Compositor.h"
#include "desktops/PressLog.h"
#include "session/EventLoop.h"

#include <QColor>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

const QColor colour(0x33, 0x66, 0xcc);

std::unique_ptr<Compositor> compositor(const CompositorOptions& options = {}) {
    return Compositor::make(QStringLiteral(BRELLOWIND_COMPOSITOR), options);
}

/// Waits until a point of the desktop has a colour.
bool becomes(Compositor& compositor, QPoint pixel, QColor wanted) {
    return waitUntil([&] { return compositor.screenshot().pixelColor(pixel) == wanted; });
}

TEST(CompositorTest, ShowsAFullScreenWindow) {
    const auto desktop = compositor({.size = {1000, 600}});
    EXPECT_FALSE(desktop->screenshot().pixelColor(500, 300) == colour);
    auto window = PressLog::fullScreen(*desktop, colour);
    EXPECT_EQ(window.size(), QSize(1000, 600));
    EXPECT_TRUE(becomes(*desktop, {500, 300}, colour));
    EXPECT_EQ(desktop->screenshot().size(), QSize(1000, 600));
}

TEST(CompositorTest, GivesAPressToTheWindowAtItsPlace) {
    const auto desktop = compositor();
    auto window = PressLog::fullScreen(*desktop, colour);
    desktop->click({200, 150});
    desktop->click({1033, 651}, Compositor::secondaryButton);
    const auto first = window.awaitPress();
    EXPECT_EQ(first.place, QPointF(200, 150));
    EXPECT_EQ(first.button, Compositor::primaryButton);
    const auto second = window.awaitPress();
    EXPECT_EQ(second.place, QPointF(1033, 651));
    EXPECT_EQ(second.button, Compositor::secondaryButton);
    EXPECT_TRUE(window.takePresses().isEmpty());
}

TEST(CompositorTest, MovesThePointerByADistance) {
    const auto desktop = compositor();
    auto window = PressLog::fullScreen(*desktop, colour);
    desktop->movePointerTo({300, 300});
    desktop->movePointerBy({25, -40});
    desktop->button(Compositor::primaryButton, Stroke::down);
    desktop->button(Compositor::primaryButton, Stroke::up);
    EXPECT_EQ(window.awaitPress().place, QPointF(325, 260));
}

TEST(CompositorTest, TypesIntoTheWindow) {
    const auto desktop = compositor();
    auto window = PressLog::fullScreen(*desktop, colour);
    EXPECT_TRUE(window.awaitLine(QStringLiteral("keyboard enter")));
    constexpr int downArrow = 108;
    desktop->type(downArrow);
    EXPECT_TRUE(window.awaitLine(QStringLiteral("key 108")));
}

TEST(CompositorTest, HasTwiceThePixelsAtTwiceTheScale) {
    const auto desktop = compositor({.size = {1280, 720}, .scale = 2});
    auto window = PressLog::fullScreen(*desktop, colour);
    EXPECT_EQ(window.size(), QSize(1280, 720));
    EXPECT_EQ(desktop->screenshot().size(), QSize(2560, 1440));
    EXPECT_TRUE(becomes(*desktop, {2500, 1400}, colour));
    desktop->click({1200, 700});
    EXPECT_EQ(window.awaitPress().place, QPointF(1200, 700));
}

TEST(CompositorTest, CountsInPointsAtAFractionalScale) {
    const auto desktop = compositor({.size = {1280, 720}, .scale = 1.5});
    auto window = PressLog::fullScreen(*desktop, colour);
    EXPECT_EQ(window.size(), QSize(1280, 720));
    EXPECT_EQ(desktop->screenshot().size(), QSize(1920, 1080));
    desktop->movePointerTo({1100, 660});
    desktop->movePointerBy({100, 40});
    desktop->button(Compositor::primaryButton, Stroke::down);
    desktop->button(Compositor::primaryButton, Stroke::up);
    const auto place = window.awaitPress().place;
    EXPECT_NEAR(place.x(), 1200, 0.7); // a pixel
    EXPECT_NEAR(place.y(), 700, 0.7);
}

TEST(CompositorTest, KeepsItsPixelsWhenTheScaleChanges) {
    const auto desktop = compositor({.size = {2560, 1440}});
    auto window = PressLog::fullScreen(*desktop, colour);
    desktop->setScale(2);
    EXPECT_TRUE(waitUntil([&] { return window.size() == QSize(1280, 720); }));
    EXPECT_EQ(desktop->screenshot().size(), QSize(2560, 1440));
    EXPECT_EQ(desktop->screens().value(0).geometry, QRect(0, 0, 1280, 720));
}

TEST(CompositorTest, LeadsXClientsToXWayland) {
    const auto desktop = compositor({.xWayland = true});
    const auto properties =
        desktop->session().run(QStringLiteral("xprop"), {QStringLiteral("-root")});
    EXPECT_THAT(properties.toStdString(), testing::HasSubstr("_NET_SUPPORTED"));
}

TEST(CompositorTest, TakesItsClientsAlongWhenItIsKilled) {
    const auto desktop = compositor();
    auto window = PressLog::fullScreen(*desktop, colour);
    desktop->kill();
    EXPECT_FALSE(desktop->isRunning());
    EXPECT_TRUE(waitUntil([&] { return !window.isRunning(); }));
    EXPECT_THROW(desktop->screenshot(), DesktopFailure);
}

} // namespace
} // namespace brellowind::test
