// SPDX-License-Identifier: MIT

#include "session/SendSignal.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace brellowind::test {
namespace {

/// Also if it is a zombie.
bool hasEnded(pid_t child) {
    siginfo_t end{};
    return child <= 0 ||
           ::waitid(P_PID, static_cast<id_t>(child), &end, WEXITED | WNOHANG | WNOWAIT) != 0 ||
           end.si_pid == child;
}

} // namespace

void sendSignal(int signal, const demo::Companion& process) {
    const auto child = static_cast<pid_t>(process.processId());
    if (hasEnded(child))
        ADD_FAILURE() << "no SIG" << ::sigabbrev_np(signal) << " for a process that has ended";
    else
        EXPECT_EQ(::kill(child, signal), 0);
}

} // namespace brellowind::test
