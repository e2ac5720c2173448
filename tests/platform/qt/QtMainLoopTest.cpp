// SPDX-License-Identifier: MIT

#include "platform/qt/QtMainLoop.h"

#include "session/EventLoop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace brellowind::platform {
namespace {

using namespace std::chrono_literals;
using test::runFor;
using test::waitUntil;

class QtMainLoopTest : public testing::Test {
protected:
    /// Waits without waking the loop, except for a distant deadline.
    static bool restUntil(const std::function<bool()>& condition) {
        bool expired = false;
        QTimer deadline;
        QObject::connect(&deadline, &QTimer::timeout, &deadline, [&expired] { expired = true; });
        deadline.start(20s);
        auto* dispatcher = QAbstractEventDispatcher::instance();
        QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &deadline, [&] {
            if (condition()) // of the last handlers: it would rest although there is nothing left
                dispatcher->wakeUp();
        });
        while (!condition() && !expired)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return !expired;
    }

    QtMainLoop loop;
    std::vector<int> events;
};

TEST_F(QtMainLoopTest, ATimerFiresOnceAndNeverInsideTheCallThatSchedulesIt) {
    int fired = 0;
    const auto timer = loop.scheduleOnce(0ms, [&] { ++fired; });
    EXPECT_EQ(fired, 0);
    ASSERT_TRUE(waitUntil([&] { return fired > 0; }));
    runFor(30ms);
    EXPECT_EQ(fired, 1);
}

TEST_F(QtMainLoopTest, TimersFireInTheOrderOfTheirDelays) {
    const auto last = loop.scheduleOnce(60ms, [&] { events.push_back(60); });
    const auto first = loop.scheduleOnce(0ms, [&] { events.push_back(0); });
    const auto middle = loop.scheduleOnce(30ms, [&] { events.push_back(30); });
    ASSERT_TRUE(waitUntil([&] { return events.size() == 3; }));
    EXPECT_EQ(events, (std::vector<int>{0, 30, 60}));
}

TEST_F(QtMainLoopTest, TimersOfTheNextTurnFireInTheOrderOfTheirScheduling) {
    std::vector<std::unique_ptr<Timer>> timers;
    for (int i = 0; i < 10; ++i)
        timers.push_back(loop.scheduleOnce(0ms, [this, i] { events.push_back(i); }));
    ASSERT_TRUE(waitUntil([&] { return events.size() == 10; }));
    EXPECT_EQ(events, (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST_F(QtMainLoopTest, ARepeatingTimerFiresUntilItIsDestroyed) {
    int fired = 0;
    auto timer = loop.scheduleRepeating(1ms, [&] { ++fired; });
    ASSERT_TRUE(waitUntil([&] { return fired >= 5; }));
    timer.reset();
    const int before = fired;
    runFor(30ms);
    EXPECT_EQ(fired, before);
}

TEST_F(QtMainLoopTest, APausedTimerDoesNotFireUntilItIsResumed) {
    int fired = 0;
    std::unique_ptr<RepeatingTimer> timer;
    timer = loop.scheduleRepeating(1ms, [&] {
        if (++fired == 5)
            timer->setPaused(true);
    });
    ASSERT_TRUE(waitUntil([&] { return fired == 5; }));
    timer->setPaused(true);
    runFor(30ms);
    EXPECT_EQ(fired, 5);
    timer->setPaused(false);
    timer->setPaused(false);
    ASSERT_TRUE(waitUntil([&] { return fired >= 10; }));
}

TEST_F(QtMainLoopTest, ADestroyedTimerNeverFires) {
    int fired = 0;
    auto timer = loop.scheduleOnce(0ms, [&] { ++fired; });
    timer.reset();
    runFor(30ms);
    EXPECT_EQ(fired, 0);
}

TEST_F(QtMainLoopTest, ATimerMayBeDestroyedByItsOwnHandler) {
    const auto held = std::make_shared<int>(7);
    std::unique_ptr<Timer> once;
    once = loop.scheduleOnce(0ms, [&once, &events = events, held] {
        once.reset();
        events.push_back(*held); // the handler's captures still exist
    });
    ASSERT_TRUE(waitUntil([&] { return !events.empty(); }));
    std::unique_ptr<Timer> repeating;
    repeating = loop.scheduleRepeating(1ms, [&repeating, &events = events, held] {
        repeating.reset();
        events.push_back(*held);
    });
    ASSERT_TRUE(waitUntil([&] { return events.size() == 2; }));
    runFor(30ms);
    EXPECT_EQ(events, (std::vector<int>{7, 7}));
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(QtMainLoopTest, ATimerMayReplaceItselfInItsHandler) {
    std::unique_ptr<Timer> timer;
    std::function<void()> again = [&] {
        events.push_back(1);
        if (events.size() < 5)
            timer = loop.scheduleOnce(0ms, again);
    };
    timer = loop.scheduleOnce(0ms, again);
    EXPECT_TRUE(waitUntil([&] { return events.size() == 5; }));
}

TEST_F(QtMainLoopTest, ATimerMayDestroyAnotherOneThatIsDueAsWell) {
    std::unique_ptr<Timer> second;
    const auto first = loop.scheduleOnce(0ms, [&] {
        events.push_back(1);
        second.reset();
    });
    second = loop.scheduleOnce(0ms, [&] { events.push_back(2); });
    runFor(30ms);
    EXPECT_EQ(events, std::vector<int>{1});
}

TEST_F(QtMainLoopTest, NextTurnRunsOnceHoweverOftenItIsAskedForAndNotInsideTheRequest) {
    int ran = 0;
    const auto next = loop.onNextTurn([&] { ++ran; });
    for (int i = 0; i < 5; ++i)
        next->request();
    EXPECT_EQ(ran, 0);
    ASSERT_TRUE(restUntil([&] { return ran > 0; }));
    runFor(30ms);
    EXPECT_EQ(ran, 1);
}

TEST_F(QtMainLoopTest, NextTurnDoesNotRunUnasked) {
    int ran = 0;
    const auto next = loop.onNextTurn([&] { ++ran; });
    runFor(30ms);
    EXPECT_EQ(ran, 0);
}

TEST_F(QtMainLoopTest, NextTurnCanBeAskedForAgain) {
    int ran = 0;
    const auto next = loop.onNextTurn([&] { ++ran; });
    for (int i = 1; i <= 3; ++i) {
        next->request();
        ASSERT_TRUE(restUntil([&] { return ran == i; }));
    }
}

TEST_F(QtMainLoopTest, NextTurnRunsBeforeTheLoopRests) {
    const auto next = loop.onNextTurn([&] { events.push_back(2); });
    const auto now = loop.scheduleOnce(0ms, [&] {
        next->request();
        events.push_back(1);
    });
    const auto later = loop.scheduleOnce(200ms, [&] { events.push_back(3); });
    ASSERT_TRUE(restUntil([&] { return events.size() == 3; }));
    EXPECT_EQ(events, (std::vector<int>{1, 2, 3}));
}

TEST_F(QtMainLoopTest, NextTurnTakesNoFurtherIterationOfTheEventLoop) {
    const auto next = loop.onNextTurn([&] { events.push_back(2); });
    const auto now = loop.scheduleOnce(0ms, [&] {
        next->request();
        events.push_back(1);
    });
    const QObject watch;
    auto* dispatcher = QAbstractEventDispatcher::instance();
    QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &watch,
                     [&] { events.push_back(0); });
    ASSERT_TRUE(restUntil([&] { return std::ranges::count(events, 2) > 0; }));
    const std::vector<int> both(std::ranges::find(events, 1), ++std::ranges::find(events, 2));
    EXPECT_EQ(both, (std::vector<int>{1, 2}));
}

TEST_F(QtMainLoopTest, NextTurnRunsOnceAfterAllHandlersThatWereDueTogether) {
    const auto next = loop.onNextTurn([&] { events.push_back(0); });
    const auto ask = [&](int event) {
        return [this, &next, event] {
            next->request();
            events.push_back(event);
        };
    };
    const auto first = loop.scheduleOnce(0ms, ask(1));
    const auto second = loop.scheduleOnce(0ms, ask(2));
    const auto third = loop.scheduleOnce(0ms, ask(3));
    ASSERT_TRUE(restUntil([&] { return !events.empty() && events.back() == 0; }));
    EXPECT_EQ(events, (std::vector<int>{1, 2, 3, 0}));
}

TEST_F(QtMainLoopTest, NextTurnAskedForInItsOwnHandlerRunsAgainOnTheFollowingTurn) {
    std::unique_ptr<NextTurn> next;
    bool inside = false;
    next = loop.onNextTurn([&] {
        EXPECT_FALSE(inside);
        inside = true;
        events.push_back(1);
        if (events.size() < 4)
            next->request();
        inside = false;
    });
    const auto late = loop.scheduleOnce(5s, [&] { events.push_back(5); });
    next->request();
    ASSERT_TRUE(restUntil([&] { return events.size() == 4; }));
    EXPECT_EQ(events, (std::vector<int>{1, 1, 1, 1})) << "only another event woke the loop";
}

TEST_F(QtMainLoopTest, NextTurnAskedForByAnothersHandlerRunsBeforeTheLoopRests) {
    std::unique_ptr<NextTurn> early = loop.onNextTurn([&] { events.push_back(2); });
    const auto late = loop.onNextTurn([&] {
        events.push_back(1);
        early->request(); // its turn has just passed
    });
    const auto muchLater = loop.scheduleOnce(5s, [&] { events.push_back(3); });
    late->request();
    ASSERT_TRUE(restUntil([&] { return events.size() == 2; }));
    EXPECT_EQ(events, (std::vector<int>{1, 2})) << "only another event woke the loop";
}

TEST_F(QtMainLoopTest, NextTurnAskedForByAnothersHandlerRunsInAnotherIteration) {
    std::unique_ptr<NextTurn> second;
    const auto first = loop.onNextTurn([&] {
        events.push_back(1);
        second->request();
    });
    second = loop.onNextTurn([&] { events.push_back(2); });
    const QObject watch;
    auto* dispatcher = QAbstractEventDispatcher::instance();
    QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &watch,
                     [&] { events.push_back(0); });
    first->request();
    ASSERT_TRUE(restUntil([&] { return std::ranges::count(events, 2) > 0; }));
    const std::vector<int> all(std::ranges::find(events, 1), ++std::ranges::find(events, 2));
    EXPECT_EQ(all, (std::vector<int>{1, 0, 2}));
}

TEST_F(QtMainLoopTest, NextTurnRunsInALoopThatIsDrivenWithoutResting) {
    int ran = 0;
    const auto next = loop.onNextTurn([&] { ++ran; });
    next->request();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(ran, 1);
}

TEST_F(QtMainLoopTest, DestroyingNextTurnWithdrawsIt) {
    int ran = 0;
    auto next = loop.onNextTurn([&] { ++ran; });
    next->request();
    next.reset();
    runFor(30ms);
    EXPECT_EQ(ran, 0);
}

TEST_F(QtMainLoopTest, NextTurnMayBeDestroyedByItsOwnHandler) {
    const auto held = std::make_shared<int>(7);
    std::unique_ptr<NextTurn> next;
    next = loop.onNextTurn([&next, &events = events, held] {
        next.reset();
        events.push_back(*held);
    });
    next->request();
    ASSERT_TRUE(restUntil([&] { return !events.empty(); }));
    EXPECT_EQ(events, std::vector<int>{7});
    EXPECT_EQ(held.use_count(), 1);
}

} // namespace
} // namespace brellowind::platform
