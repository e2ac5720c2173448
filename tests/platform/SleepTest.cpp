// SPDX-License-Identifier: MIT

#include "platform/Sleep.h"
#include "support/TestMachine.h"

#include <gtest/gtest.h>
#include <optional>

namespace brellowind::platform {
namespace {

using namespace std::chrono_literals;

struct Sleeper {
    explicit Sleeper(MainLoop& mainLoop_) : mainLoop(mainLoop_) {}

    Task<void> run(std::chrono::milliseconds duration) {
        finished = co_await sleep(mainLoop, duration);
    }

    MainLoop& mainLoop;
    std::optional<bool> finished;
};

TEST(Sleep, LastsItsDuration) {
    test::TestMachine machine;
    Sleeper sleeper(machine.mainLoop);
    machine.tasks.start(sleeper.run(150ms));
    machine.mainLoop.advance(149ms);
    EXPECT_EQ(sleeper.finished, std::nullopt);
    machine.mainLoop.advance(1ms);
    EXPECT_EQ(sleeper.finished, true);
}

TEST(Sleep, EndsOnTheNextTurnWhenCancelled) {
    test::TestMachine machine;
    Sleeper sleeper(machine.mainLoop);
    auto task = machine.tasks.start(sleeper.run(150ms));
    machine.mainLoop.advance(10ms);
    task.cancel();
    EXPECT_EQ(sleeper.finished, std::nullopt);
    machine.mainLoop.runTurns();
    EXPECT_EQ(sleeper.finished, false);
    EXPECT_EQ(machine.mainLoop.timerCount(), 0U);
}

TEST(Sleep, DoesNotBeginInACancelledTask) {
    test::TestMachine machine;
    Sleeper sleeper(machine.mainLoop);
    machine.tasks.start(sleeper.run(150ms)).cancel();
    machine.mainLoop.runTurns();
    EXPECT_EQ(sleeper.finished, false);
}

} // namespace
} // namespace brellowind::platform
