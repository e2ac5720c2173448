// SPDX-License-Identifier: MIT

#include "foundation/StopToken.h"

#include <gtest/gtest.h>
#include <optional>

namespace brellowind {
namespace {

TEST(StopToken, TellsThatItsSourceHasRequestedTheStop) {
    StopSource source;
    const auto token = source.token();
    EXPECT_FALSE(token.stopRequested());
    source.requestStop();
    EXPECT_TRUE(token.stopRequested());
    EXPECT_TRUE(source.token().stopRequested());
}

TEST(StopToken, WithoutASourceNeverStops) {
    const StopToken token;
    bool called = false;
    const auto subscription = token.onStop([&] { called = true; });
    EXPECT_FALSE(token.stopRequested());
    EXPECT_FALSE(called);
}

TEST(StopToken, OutlivesItsSource) {
    std::optional<StopSource> source(std::in_place);
    const auto token = source->token();
    source->requestStop();
    source.reset();
    EXPECT_TRUE(token.stopRequested());
}

TEST(StopToken, CallsBackOnceWhenTheStopIsRequested) {
    StopSource source;
    int calls = 0;
    const auto subscription = source.token().onStop([&] { ++calls; });
    EXPECT_EQ(calls, 0);
    source.requestStop();
    source.requestStop();
    EXPECT_EQ(calls, 1);
}

TEST(StopToken, CallsBackAtOnceWhenTheStopHasBeenRequested) {
    StopSource source;
    source.requestStop();
    int calls = 0;
    const auto subscription = source.token().onStop([&] { ++calls; });
    EXPECT_EQ(calls, 1);
}

TEST(StopToken, ShowsTheStopToItsCallbacks) {
    StopSource source;
    const auto token = source.token();
    bool seen = false;
    const auto subscription = token.onStop([&] { seen = token.stopRequested(); });
    source.requestStop();
    EXPECT_TRUE(seen);
}

TEST(StopToken, DoesNotCallBackAfterTheSubscriptionHasEnded) {
    StopSource source;
    int calls = 0;
    {
        const auto subscription = source.token().onStop([&] { ++calls; });
    }
    source.requestStop();
    EXPECT_EQ(calls, 0);
}

TEST(StopToken, ACallbackMayEndItsOwnSubscriptionAndAnother) {
    StopSource source;
    int calls = 0;
    Subscription first;
    Subscription second;
    first = source.token().onStop([&] {
        ++calls;
        first.cancel();
        second.cancel();
    });
    second = source.token().onStop([&] { ++calls; });
    source.requestStop();
    EXPECT_EQ(calls, 1);
}

TEST(StopToken, ACallbackMayDestroyTheSource) {
    std::optional<StopSource> source(std::in_place);
    int calls = 0;
    const auto first = source->token().onStop([&] { source.reset(); });
    const auto second = source->token().onStop([&] { ++calls; });
    source->requestStop();
    EXPECT_EQ(calls, 1);
}

} // namespace
} // namespace brellowind
