// SPDX-License-Identifier: MIT

#include "platform/unix/UnixSignals.h"

#include "session/EventLoop.h"

#include <csignal>
#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

using namespace std::chrono_literals;
using SignalHandler = void (*)(int);

SignalHandler handlerOf(int signal) {
    struct sigaction action {};
    ::sigaction(signal, nullptr, &action);
    return action.sa_handler;
}

class UnixSignalsTest : public testing::TestWithParam<int> {
protected:
    ~UnixSignalsTest() override { std::signal(signal, SIG_DFL); }

    const int signal = GetParam();
    int terminations = 0;
};

INSTANTIATE_TEST_SUITE_P(, UnixSignalsTest, testing::Values(SIGINT, SIGTERM, SIGHUP),
                         [](const auto& signal) { return ::sigabbrev_np(signal.param); });

TEST_P(UnixSignalsTest, BecomesACallOnTheMainLoop) {
    const UnixSignals signals([this] { ++terminations; });
    std::raise(signal);
    EXPECT_EQ(terminations, 0);
    EXPECT_TRUE(test::waitUntil([this] { return terminations == 1; }));
    std::raise(signal);
    EXPECT_TRUE(test::waitUntil([this] { return terminations == 2; }));
}

TEST_P(UnixSignalsTest, StaysIgnoredIfItWasBefore) {
    std::signal(signal, SIG_IGN);
    {
        const UnixSignals signals([this] { ++terminations; });
        std::raise(signal);
        test::runFor(30ms);
        EXPECT_EQ(terminations, 0);
    }
    EXPECT_EQ(handlerOf(signal), SIG_IGN);
}

TEST_P(UnixSignalsTest, EndsTheProcessAgainAfterwards) {
    {
        const UnixSignals signals([this] { ++terminations; });
    }
    EXPECT_EQ(handlerOf(signal), SIG_DFL);
}

TEST_P(UnixSignalsTest, IsForgottenWhenNobodyListensAnyMore) {
    {
        const UnixSignals signals([this] { ++terminations; });
        std::raise(signal);
    }
    const UnixSignals others([] {});
    test::runFor(30ms);
    EXPECT_EQ(terminations, 0);
}

} // namespace
} // namespace brellowind::platform
