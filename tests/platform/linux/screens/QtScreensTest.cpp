// SPDX-License-Identifier: MIT

#include "platform/linux/screens/QtScreens.h"

#include "platform/qt/QtMainLoop.h"
#include "session/EventLoop.h"
#include "session/x11/Monitors.h"
#include "support/PrintGeometry.h"

#include <QGuiApplication>
#include <QScreen>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

/// On an X screen of 1280 × 800 pixels.
class QtScreens : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(become({{0, 0, 1280, 800}}));
        runFor(std::chrono::milliseconds(0));
        changes = 0;
    }

    std::vector<Rect> frames() {
        std::vector<Rect> frames;
        for (const auto& screen : screens.screens())
            frames.push_back(screen.frame);
        return frames;
    }

    bool become(const std::vector<Rect>& expected) {
        return waitUntil([&] { return frames() == expected; }, std::chrono::seconds(5));
    }

    platform::QtMainLoop mainLoop;
    platform::QtScreens screens{mainLoop};
    int changes = 0;
    Subscription subscription = screens.onChange([this] { ++changes; });
    Monitors monitors{qEnvironmentVariable("DISPLAY")};
};

TEST_F(QtScreens, AreOneThatIsTheMainOneToo) {
    EXPECT_EQ(frames(), (std::vector<Rect>{{0, 0, 1280, 800}}));
    ASSERT_TRUE(screens.main());
    EXPECT_EQ(*screens.main(), screens.screens()[0]);
    EXPECT_EQ(screens.main()->visibleFrame, (Rect{0, 0, 1280, 800}));
    EXPECT_EQ(screens.main()->topSafeAreaInset, 0);
}

TEST_F(QtScreens, FollowANewModeAndTellOfIt) {
    monitors.resize({1024, 768});
    EXPECT_TRUE(become({{0, 0, 1024, 768}}));
    EXPECT_TRUE(waitUntil([this] { return changes > 0; }));
}

TEST_F(QtScreens, FollowAMonitorThatIsSwitchedOffAndOnAgainInAnotherMode) {
    monitors.switchOff();
    ASSERT_TRUE(waitUntil(
        [] { return QGuiApplication::primaryScreen()->name() != QStringLiteral("screen"); }));
    monitors.resize({1024, 768});
    EXPECT_TRUE(become({{0, 0, 1024, 768}}));
    EXPECT_TRUE(waitUntil([this] { return changes > 0; }));
    EXPECT_EQ(screens.main()->frame, (Rect{0, 0, 1024, 768}));
}

TEST_F(QtScreens, AreTwoBesideEachOtherInTheCoordinatesOfThePrimaryOne) {
    monitors.add(QStringLiteral("LEFT"), {0, 0, 480, 800}, false);
    monitors.add(QStringLiteral("RIGHT"), {480, 200, 800, 600}, true);
    EXPECT_TRUE(become({{0, 0, 800, 600}, {-480, 0, 480, 800}}));
    EXPECT_EQ(screens.main()->frame, (Rect{0, 0, 800, 600}));
}

TEST_F(QtScreens, FollowAScreenThatIsRemoved) {
    monitors.add(QStringLiteral("LEFT"), {0, 0, 480, 800}, true);
    monitors.add(QStringLiteral("RIGHT"), {480, 200, 800, 600}, false);
    ASSERT_TRUE(become({{0, 0, 480, 800}, {480, 0, 800, 600}}));
    ASSERT_TRUE(waitUntil([this] { return changes > 0; }));
    changes = 0;
    monitors.remove(QStringLiteral("RIGHT"));
    EXPECT_TRUE(become({{0, 0, 480, 800}}));
    EXPECT_TRUE(waitUntil([this] { return changes > 0; }));
}

TEST_F(QtScreens, FollowAnotherPrimaryScreen) {
    monitors.add(QStringLiteral("LEFT"), {0, 0, 480, 800}, true);
    monitors.add(QStringLiteral("RIGHT"), {480, 0, 800, 600}, false);
    ASSERT_TRUE(become({{0, 0, 480, 800}, {480, 200, 800, 600}}));
    monitors.remove(QStringLiteral("RIGHT"));
    monitors.add(QStringLiteral("RIGHT"), {480, 0, 800, 600}, true);
    EXPECT_TRUE(waitUntil(
        [this] {
            return screens.main()->frame == Rect{0, 0, 800, 600};
        },
        std::chrono::seconds(5)));
}

TEST_F(QtScreens, TellOnceOfChangesThatComeTogether) {
    Q_EMIT qGuiApp->primaryScreen()->geometryChanged({});
    Q_EMIT qGuiApp->primaryScreen()->availableGeometryChanged({});
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(waitUntil([this] { return changes > 0; }));
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace brellowind::test
