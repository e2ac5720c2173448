// SPDX-License-Identifier: MIT

#include "session/SendSignal.h"

#include <csignal>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace brellowind::test {
namespace {

/// Runs until it is terminated.
struct Sleeper : demo::Companion {
    Sleeper() : Companion(QStringLiteral("sleep"), {QStringLiteral("infinity")}) {}
};

TEST(SendSignal, ReachesAProcessThatRuns) {
    Sleeper sleeper;
    sendSignal(SIGTERM, sleeper);
    EXPECT_EQ(sleeper.finish(), -1);
    EXPECT_FALSE(sleeper.isRunning());
}

/// The id of such a process is 0; a signal to it would end this test.
TEST(SendSignal, FailsForAProcessThatHasEnded) {
    Sleeper sleeper;
    sleeper.end();
    EXPECT_NONFATAL_FAILURE(sendSignal(SIGTERM, sleeper),
                            "no SIGTERM for a process that has ended");
}

TEST(SendSignal, FailsForAProcessWhoseEndNobodyHasSeenYet) {
    Sleeper sleeper;
    sendSignal(SIGKILL, sleeper);
    siginfo_t end{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(sleeper.processId()), &end, WEXITED | WNOWAIT), 0);
    EXPECT_TRUE(sleeper.isRunning()) << "as far as is known";
    EXPECT_NONFATAL_FAILURE(sendSignal(SIGTERM, sleeper),
                            "no SIGTERM for a process that has ended");
}

} // namespace
} // namespace brellowind::test
