// SPDX-License-Identifier: MIT

#include "platform/FailureLog.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace brellowind::platform {
namespace {

using testing::ElementsAre;

class FailureLogTest : public testing::Test, Log {
protected:
    std::vector<std::string> lines;
    FailureLog failures{*this, "player: "};

private:
    void write(std::string_view line) override { lines.emplace_back(line); }
};

TEST_F(FailureLogTest, WritesAFailureThatRepeatsOnce) {
    failures.failed("hangs");
    failures.failed("hangs");
    EXPECT_THAT(lines, ElementsAre("player: hangs"));
}

TEST_F(FailureLogTest, WritesEachChangeOfTheDescription) {
    failures.failed("hangs");
    failures.failed("fails");
    failures.failed("hangs");
    EXPECT_THAT(lines, ElementsAre("player: hangs", "player: fails", "player: hangs"));
}

TEST_F(FailureLogTest, WritesTheSameFailureAgainAfterASuccess) {
    failures.succeeded();
    failures.failed("hangs");
    failures.succeeded();
    failures.failed("hangs");
    EXPECT_THAT(lines, ElementsAre("player: hangs", "player: hangs"));
}

} // namespace
} // namespace brellowind::platform
