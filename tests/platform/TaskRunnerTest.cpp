// SPDX-License-Identifier: MIT

#include "platform/TaskRunner.h"
#include "platform/Sleep.h"
#include "support/TestMachine.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace brellowind {
namespace {

using namespace std::chrono_literals;

Task<void> note(std::vector<std::string>& events, std::string event) {
    events.push_back(std::move(event));
    co_return;
}

Task<int> answer() {
    co_return 42;
}

TEST(TaskRunner, BeginsATaskOnTheNextTurn) {
    test::TestMachine machine;
    std::vector<std::string> events;
    machine.tasks.start(note(events, "ran"));
    EXPECT_TRUE(events.empty());
    machine.mainLoop.runTurns();
    EXPECT_EQ(events, std::vector<std::string>{"ran"});
    EXPECT_EQ(machine.tasks.running(), 0U);
}

TEST(TaskRunner, RunsTasksInTheOrderOfTheirStart) {
    test::TestMachine machine;
    std::vector<std::string> events;
    machine.tasks.start(note(events, "first"));
    machine.tasks.start(note(events, "second"));
    machine.mainLoop.runTurns();
    EXPECT_EQ(events, (std::vector<std::string>{"first", "second"}));
}

TEST(TaskRunner, ATaskReceivesTheResultOfTheTaskItAwaits) {
    test::TestMachine machine;
    int result = 0;
    const auto body = [](int& into) -> Task<void> { into = co_await answer(); };
    machine.tasks.start(body(result));
    machine.mainLoop.runTurns();
    EXPECT_EQ(result, 42);
}

TEST(TaskRunner, CancellationReachesTheTasksThatATaskAwaits) {
    test::TestMachine machine;
    bool cancelled = false;
    const auto inner = []() -> Task<bool> {
        co_return (co_await CurrentStopToken{}).stopRequested();
    };
    const auto outer = [&](bool& into) -> Task<void> { into = co_await inner(); };
    auto handle = machine.tasks.start(outer(cancelled));
    handle.cancel();
    machine.mainLoop.runTurns();
    EXPECT_TRUE(cancelled);
}

TEST(TaskRunner, ItsEndDestroysSuspendedTasksAndWhatTheyWaitFor) {
    const auto held = std::make_shared<int>();
    test::TestMachine machine;
    {
        TaskRunner runner(machine.mainLoop);
        const auto body = [](platform::MainLoop& mainLoop, std::shared_ptr<int>) -> Task<void> {
            co_await platform::sleep(mainLoop, 1h);
        };
        runner.start(body(machine.mainLoop, held));
        machine.mainLoop.runTurns();
        EXPECT_EQ(held.use_count(), 2);
    }
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_EQ(machine.mainLoop.timerCount(), 0U);
}

} // namespace
} // namespace brellowind
