// SPDX-License-Identifier: MIT

#include "platform/HttpClient.h"
#include "support/TestMachine.h"

#include <gtest/gtest.h>
#include <optional>

namespace brellowind::platform {
namespace {

struct Fetcher {
    explicit Fetcher(HttpClient& http_) : http(http_) {}

    Task<void> run() {
        HttpRequest request{.url = "https://host.example/", .headers = {}, .maximumBodyBytes = 9};
        result = co_await http.fetch(std::move(request));
    }

    HttpClient& http;
    std::optional<HttpResult> result;
};

TEST(HttpFetch, GivesTheResponse) {
    test::TestMachine machine;
    Fetcher fetcher(machine.http);
    machine.tasks.start(fetcher.run());
    machine.mainLoop.runTurns();
    ASSERT_EQ(machine.http.requests.size(), 1U);
    EXPECT_EQ(machine.http.requests[0]->request.url, "https://host.example/");
    machine.http.answer(0, HttpResponse{200, "body"});
    ASSERT_TRUE(fetcher.result.has_value());
    EXPECT_EQ(std::get<HttpResponse>(*fetcher.result).body, "body");
}

TEST(HttpFetch, CancellationAbortsTheTransferAtOnceAndGivesATransportErrorOnTheNextTurn) {
    test::TestMachine machine;
    Fetcher fetcher(machine.http);
    auto task = machine.tasks.start(fetcher.run());
    machine.mainLoop.runTurns();
    task.cancel();
    EXPECT_TRUE(machine.http.requests[0]->aborted);
    EXPECT_FALSE(fetcher.result.has_value());
    machine.mainLoop.runTurns();
    ASSERT_TRUE(fetcher.result.has_value());
    EXPECT_TRUE(std::holds_alternative<TransportError>(*fetcher.result));
}

TEST(HttpFetch, SendsNothingInACancelledTask) {
    test::TestMachine machine;
    Fetcher fetcher(machine.http);
    machine.tasks.start(fetcher.run()).cancel();
    machine.mainLoop.runTurns();
    EXPECT_TRUE(machine.http.requests.empty());
    EXPECT_TRUE(std::holds_alternative<TransportError>(fetcher.result.value()));
}

} // namespace
} // namespace brellowind::platform
