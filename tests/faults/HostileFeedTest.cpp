// SPDX-License-Identifier: MIT

#include "faults/HostileAnswers.h"
#include "faults/HostileServer.h"
#include "faults/NetworkMachine.h"
#include "session/EventLoop.h"
#include "session/LoopWatch.h"
#include "settings/UpdateChecker.h"

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace brellowind {
namespace {

using Case = UpdateState::Case;
using demo::Exchange;
using test::HostileServer;
using test::LoopWatch;
namespace hostile = test::hostile;

const QByteArray goodFeed = R"({"version":"99.0","url":"https://downloads.invalid/"})";

struct Row {
    const char* name;
    Case state;
    HostileServer::Handler handler;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class HostileFeed : public testing::TestWithParam<Row> {
protected:
    std::atomic<bool> isHostile = true;
    HostileServer server{[this](const Exchange& exchange) {
        if (isHostile)
            GetParam().handler(exchange);
        else
            exchange.respond(200, goodFeed);
    }};
    test::NetworkMachine machine{server.origin()};
    std::shared_ptr<UpdateChecker> checker = std::make_shared<UpdateChecker>(
        machine.http, machine.log, machine.standIns.links, machine.constants);

    Case check() {
        machine.tasks.start(checker->check());
        EXPECT_TRUE(test::waitUntil([&] { return checker->state->which() == Case::checking; }));
        EXPECT_TRUE(test::waitUntil([&] { return checker->state->which() != Case::checking; }));
        return checker->state->which();
    }
};

bool isControl(char character) {
    return static_cast<unsigned char>(character) < ' ' || character == '\x7F';
}

TEST_P(HostileFeed, EndsInItsStateWithOneLineWhenItFailedAndTheNextCheckIsWell) {
    LoopWatch loop;
    Case state{};
    QByteArray log;
    const auto ask = [&] {
        testing::internal::CaptureStderr();
        state = check();
        log = QByteArray::fromStdString(testing::internal::GetCapturedStderr());
    };
    EXPECT_LT(loop.longestTurnOf(ask), LoopWatch::bearable());
    ASSERT_EQ(state, GetParam().state);
    if (state == Case::failed) {
        EXPECT_TRUE(log.startsWith("Update check failed: ")) << log.constData();
        EXPECT_EQ(log.indexOf('\n'), log.size() - 1) << log.constData();
        EXPECT_TRUE(std::none_of(log.begin(), log.end() - 1, isControl)) << log.constData();
    } else {
        EXPECT_TRUE(log.isEmpty()) << log.constData();
    }
    isHostile = false;
    EXPECT_EQ(check(), Case::available);
}

Row body(const char* name, Case state, const QByteArray& bytes) {
    return {name, state, [bytes](const Exchange& exchange) { exchange.respond(200, bytes); }};
}

const std::vector<Row> rows{
    {"CutOff", Case::failed,
     [](const Exchange& e) { hostile::answer(e, "Content-Length: 1000\r\n", goodFeed); }},
    {"CutOffErrorPageWithAStrangePhrase", Case::failed,
     [](const Exchange& e) {
         e.send("HTTP/1.1 500 \x1B[2J\x07 gone\r\nContent-Length: 1000\r\n\r\n{}");
         e.connection->disconnectFromHost();
     }},
    {"RedirectToNothingWithAStrangePhrase", Case::failed,
     [](const Exchange& e) {
         e.send("HTTP/1.1 302 " + QByteArray(100'000, 'x') + "\x1B[2J\r\n\r\n");
         e.connection->disconnectFromHost();
     }},
    {"RedirectToAStrangePlace", Case::failed,
     [](const Exchange& e) { hostile::redirect(e, "strange:\x1B[2J%0Aplace"); }},
    {"CompressedInAWayNeverAskedFor", Case::failed,
     [](const Exchange& e) {
         hostile::answer(e, "Content-Encoding: \x1B[2J\r\n", hostile::brotliBomb());
     }},
    {"AHundredMegabytes", Case::failed,
     [](const Exchange& e) {
         hostile::begin(e, {});
         hostile::pour(e, QByteArray(1'000'000, ' '));
     }},
    body("NestedDeeply", Case::failed, QByteArray("[").repeated(100'000)),
    body("VersionOfAHundredThousandDigits", Case::available,
         R"({"version":")" + QByteArray(100'000, '9') + R"(","url":"https://a.invalid/"})"),
};

INSTANTIATE_TEST_SUITE_P(Answer, HostileFeed, testing::ValuesIn(rows),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

} // namespace
} // namespace brellowind
