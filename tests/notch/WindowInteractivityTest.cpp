// SPDX-License-Identifier: MIT

#include "notch/WindowInteractivity.h"
#include "support/FakeOverlay.h"
#include "support/TestMachine.h"

#include <gmock/gmock.h>
#include <optional>

namespace brellowind {
namespace {

using test::FakeOverlay;
using testing::ElementsAre;
using testing::IsEmpty;

class WindowInteractivityTest : public testing::Test {
protected:
    /// The last call of the window.
    bool ignoresMouseEvents() const {
        return std::get<FakeOverlay::SetIgnoresMouseEvents>(window.calls.back()).ignores;
    }

    test::TestMachine machine;
    FakeOverlay window;
    FakeOverlay* current = &window;
    std::optional<WindowInteractivity> element{std::in_place, std::ref(machine.mainLoop),
                                               [this] { return current; }};
};

TEST_F(WindowInteractivityTest, MakesTheWindowAcceptMouseEvents) {
    element->update(true);
    machine.mainLoop.runTurns();
    EXPECT_THAT(window.calls, ElementsAre(FakeOverlay::SetIgnoresMouseEvents{false}));
}

TEST_F(WindowInteractivityTest, MakesTheWindowClickThroughAgain) {
    element->update(true);
    machine.mainLoop.runTurns();
    element->update(false);
    machine.mainLoop.runTurns();
    EXPECT_TRUE(ignoresMouseEvents());
}

TEST_F(WindowInteractivityTest, LeavesTheWindowAloneWithinTheUpdate) {
    element->update(true);
    EXPECT_THAT(window.calls, IsEmpty());
}

TEST_F(WindowInteractivityTest, LeavesTheWindowAloneBeforeTheFirstUpdate) {
    machine.mainLoop.runTurns();
    EXPECT_THAT(window.calls, IsEmpty());
}

TEST_F(WindowInteractivityTest, TakesTheLastOfTwoQuickUpdates) {
    element->update(true);
    element->update(false);
    machine.mainLoop.runTurns();
    ASSERT_FALSE(window.calls.empty());
    EXPECT_TRUE(ignoresMouseEvents());
}

TEST_F(WindowInteractivityTest, TakesTheLastOfTwoQuickUpdatesAlsoTheOtherWayRound) {
    element->update(false);
    element->update(true);
    machine.mainLoop.runTurns();
    ASSERT_FALSE(window.calls.empty());
    EXPECT_FALSE(ignoresMouseEvents());
}

TEST_F(WindowInteractivityTest, DoesNothingOutsideAWindow) {
    current = nullptr;
    element->update(true);
    machine.mainLoop.runTurns();
    current = &window;
    machine.mainLoop.runTurns();
    EXPECT_THAT(window.calls, IsEmpty());
}

TEST_F(WindowInteractivityTest, NextUpdateAfterItsPlacementInAWindowCounts) {
    current = nullptr;
    element->update(true);
    machine.mainLoop.runTurns();
    current = &window;
    element->update(true);
    machine.mainLoop.runTurns();
    EXPECT_THAT(window.calls, ElementsAre(FakeOverlay::SetIgnoresMouseEvents{false}));
}

TEST_F(WindowInteractivityTest, LooksForTheWindowOnlyWhenTheTurnHasCome) {
    FakeOverlay later;
    element->update(true);
    current = &later;
    machine.mainLoop.runTurns();
    EXPECT_THAT(window.calls, IsEmpty());
    EXPECT_THAT(later.calls, ElementsAre(FakeOverlay::SetIgnoresMouseEvents{false}));
}

TEST_F(WindowInteractivityTest, DoesNothingWhenItIsGoneByThen) {
    element->update(true);
    element.reset();
    machine.mainLoop.runTurns();
    EXPECT_THAT(window.calls, IsEmpty());
}

} // namespace
} // namespace brellowind
