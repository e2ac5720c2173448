// SPDX-License-Identifier: MIT

#include "settings/UpdateChecker.h"
#include "support/TestMachine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace brellowind {
namespace {

using platform::HttpResponse;
using platform::TransportError;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using State = UpdateChecker::State;

std::string feed(const std::string& version) {
    return R"({"version": ")" + version + R"(", "url": "https://brellowind.example/get"})";
}

Release release(const std::string& version) {
    return {version, "https://brellowind.example/get", std::nullopt};
}

class UpdateCheckerTest : public testing::Test {
protected:
    UpdateCheckerTest() { machine.constants.version = "1.2"; }

    TaskHandle startCheck() {
        auto handle = machine.tasks.start(checker.check());
        machine.mainLoop.runTurns();
        return handle;
    }

    State outcome(platform::HttpResult answer) {
        startCheck();
        machine.http.answer(machine.http.requests.size() - 1, std::move(answer));
        return checker.state.get();
    }

    test::TestMachine machine;
    std::shared_ptr<UpdateChecker> shared = std::make_shared<UpdateChecker>(
        machine.http, machine.log, machine.links, machine.constants);
    UpdateChecker& checker = *shared;
};

TEST_F(UpdateCheckerTest, BeginsIdle) {
    EXPECT_EQ(checker.state.get(), State::idle());
    EXPECT_THAT(machine.http.requests, IsEmpty());
}

TEST_F(UpdateCheckerTest, StaysIdleWithoutAFeed) {
    machine.constants.updateFeedURL.clear();
    EXPECT_FALSE(checker.hasFeed());
    startCheck();
    EXPECT_EQ(checker.state.get(), State::idle());
    EXPECT_THAT(machine.http.requests, IsEmpty());
}

TEST_F(UpdateCheckerTest, AsksNothingBeforeTheTaskRuns) {
    const auto task = checker.check();
    machine.mainLoop.runTurns();
    EXPECT_EQ(checker.state.get(), State::idle());
    EXPECT_THAT(machine.http.requests, IsEmpty());
}

TEST_F(UpdateCheckerTest, IsCheckingUntilTheAnswerArrives) {
    startCheck();
    EXPECT_EQ(checker.state.get(), State::checking());
    machine.mainLoop.advance(std::chrono::seconds(50));
    EXPECT_EQ(checker.state.get(), State::checking());
    machine.http.answer(0, HttpResponse{200, feed("1.2")});
    EXPECT_EQ(checker.state.get(), State::upToDate());
    EXPECT_EQ(machine.tasks.running(), 0U);
}

TEST_F(UpdateCheckerTest, PublishesCheckingAndThenTheOutcomeAndNothingElse) {
    std::vector<State> before;
    const auto subscription = checker.state.observe([&] { before.push_back(checker.state.get()); });
    outcome(HttpResponse{200, feed("1.3")});
    EXPECT_THAT(before, ElementsAre(State::idle(), State::checking()));
}

TEST_F(UpdateCheckerTest, AsksForTheFeedPastAllCachesWithinAMinute) {
    machine.constants.updateFeedURL = "https://feed.example/latest.json";
    startCheck();
    ASSERT_EQ(machine.http.requests.size(), 1U);
    const auto& request = machine.http.requests[0]->request;
    EXPECT_EQ(request.url, "https://feed.example/latest.json");
    EXPECT_EQ(request.cachePolicy, platform::CachePolicy::reload);
    EXPECT_EQ(request.timeout, std::chrono::seconds(60));
    EXPECT_THAT(request.headers, IsEmpty());
}

TEST_F(UpdateCheckerTest, ANewerVersionIsAvailable) {
    EXPECT_EQ(outcome(HttpResponse{200, feed("1.3")}), State::available(release("1.3")));
    EXPECT_EQ(outcome(HttpResponse{200, feed("1.10")}), State::available(release("1.10")));
    EXPECT_EQ(outcome(HttpResponse{200, feed("1.2.0")}), State::available(release("1.2.0")));
    EXPECT_THAT(machine.log.lines, IsEmpty());
}

TEST_F(UpdateCheckerTest, TheSameOrAnOlderVersionIsUpToDate) {
    machine.constants.version = "1.3";
    EXPECT_EQ(outcome(HttpResponse{200, feed("1.3")}), State::upToDate());
    machine.constants.version = "1.10";
    EXPECT_EQ(outcome(HttpResponse{200, feed("1.3")}), State::upToDate());
    EXPECT_THAT(machine.log.lines, IsEmpty());
}

TEST_F(UpdateCheckerTest, KeepsTheNotesOfARelease) {
    const auto state = outcome(HttpResponse{
        200, R"({"version": "2", "url": "http://a", "notes": "Louder.", "more": []})"});
    EXPECT_EQ(state, State::available({"2", "http://a", "Louder."}));
}

TEST_F(UpdateCheckerTest, LooksAtTheFeedAndNotAtTheStatus) {
    EXPECT_EQ(outcome(HttpResponse{404, feed("1.3")}), State::available(release("1.3")));
    EXPECT_EQ(outcome(HttpResponse{500, feed("1.2")}), State::upToDate());
    EXPECT_THAT(machine.log.lines, IsEmpty());
}

TEST_F(UpdateCheckerTest, ABuildWithoutVersionComparesAsZero) {
    machine.constants.version.clear();
    EXPECT_EQ(checker.currentVersion(), "0");
    EXPECT_EQ(outcome(HttpResponse{200, feed("0")}), State::upToDate());
    EXPECT_EQ(outcome(HttpResponse{200, feed("0.1")}), State::available(release("0.1")));
}

TEST_F(UpdateCheckerTest, ItsCurrentVersionIsTheProgramsShortVersion) {
    EXPECT_EQ(checker.currentVersion(), "1.2");
}

TEST_F(UpdateCheckerTest, ATransportErrorFailsWithItsDescriptionInOneLine) {
    EXPECT_EQ(outcome(TransportError{"the connection was refused"}), State::failed());
    EXPECT_THAT(machine.log.lines, ElementsAre("Update check failed: the connection was refused"));
}

TEST_F(UpdateCheckerTest, AnErrorPageFailsWithOneLineThatRepeatsNothingOfIt) {
    for (const int status : {200, 404, 502}) {
        machine.log.lines.clear();
        EXPECT_EQ(outcome(HttpResponse{status, "<html>\nsecret\n</html>"}), State::failed());
        ASSERT_EQ(machine.log.lines.size(), 1U);
        EXPECT_EQ(machine.log.lines[0], "Update check failed: the release feed is not valid JSON");
    }
}

TEST_F(UpdateCheckerTest, AFeedWithoutAUsableAddressFailsWithOneLine) {
    for (const auto* body : {R"({"version": "9"})", R"({"version": "9", "url": 1})",
                             R"({"version": "9", "url": "no address"})"}) {
        machine.log.lines.clear();
        EXPECT_EQ(outcome(HttpResponse{200, body}), State::failed()) << body;
        EXPECT_THAT(machine.log.lines, ElementsAre(StartsWith("Update check failed: the ")));
    }
}

TEST_F(UpdateCheckerTest, ChecksAgainFromEveryOutcome) {
    for (const auto& body : {feed("1.3"), feed("1.2"), std::string("nonsense")}) {
        EXPECT_NE(outcome(HttpResponse{200, body}), State::checking());
        startCheck();
        EXPECT_EQ(checker.state.get(), State::checking());
        machine.http.answer(machine.http.requests.size() - 1, HttpResponse{200, feed("1.2")});
    }
}

TEST_F(UpdateCheckerTest, EachOfTwoOverlappingChecksSetsTheStateWhenItEnds) {
    startCheck();
    startCheck();
    ASSERT_EQ(machine.http.requests.size(), 2U);
    machine.http.answer(1, HttpResponse{200, feed("1.3")});
    EXPECT_EQ(checker.state.get(), State::available(release("1.3")));
    machine.http.answer(0, TransportError{"late"});
    EXPECT_EQ(checker.state.get(), State::failed());
    EXPECT_THAT(machine.log.lines, ElementsAre("Update check failed: late"));
}

TEST_F(UpdateCheckerTest, ACancelledCheckAbortsTheRequestAndFails) {
    auto handle = startCheck();
    handle.cancel();
    EXPECT_TRUE(machine.http.requests[0]->aborted);
    machine.mainLoop.runTurns();
    EXPECT_EQ(checker.state.get(), State::failed());
    EXPECT_THAT(machine.log.lines, ElementsAre("Update check failed: cancelled"));
}

TEST_F(UpdateCheckerTest, OpensTheDownloadOfAnAvailableReleaseAndStaysAvailable) {
    outcome(HttpResponse{200, feed("1.3")});
    machine.links.opens = false;
    checker.openDownload();
    EXPECT_THAT(machine.links.opened, ElementsAre("https://brellowind.example/get"));
    EXPECT_EQ(checker.state.get(), State::available(release("1.3")));
}

TEST_F(UpdateCheckerTest, OpensNothingInAnyOtherState) {
    checker.openDownload();
    startCheck();
    checker.openDownload();
    machine.http.answer(0, HttpResponse{200, feed("1.2")});
    checker.openDownload();
    outcome(TransportError{"gone"});
    checker.openDownload();
    EXPECT_THAT(machine.links.opened, IsEmpty());
}

TEST(UpdateCheckerEnd, AMachineMayEndWhileACheckIsUnderWay) {
    std::weak_ptr<UpdateChecker> checker;
    {
        test::TestMachine machine;
        const auto shared = std::make_shared<UpdateChecker>(machine.http, machine.log,
                                                            machine.links, machine.constants);
        checker = shared;
        machine.tasks.start(shared->check());
        machine.mainLoop.runTurns();
        EXPECT_FALSE(checker.expired());
    }
    EXPECT_TRUE(checker.expired());
}

} // namespace
} // namespace brellowind
