// SPDX-License-Identifier: MIT

#include "faults/HostileAnswers.h"
#include "faults/HostileServer.h"
#include "faults/NetworkMachine.h"
#include "lyrics/LrclibAPI.h"
#include "lyrics/LyricsStore.h"
#include "platform/qt/Certificate.h"
#include "session/EventLoop.h"
#include "session/LoopWatch.h"
#include "session/ProcessUse.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace brellowind {
namespace {

using namespace std::chrono_literals;
using Case = LyricsState::Case;
using demo::Exchange;
using test::HostileServer;
using test::LoopWatch;
using test::ProcessUse;
namespace hostile = test::hostile;

/// The maximum growth of memory for any answer.
constexpr qint64 memoryLimitKiB = (test::isInstrumented ? 512 : 48) * 1024;

const QByteArray goodBody = R"({"syncedLyrics":"[00:01.00]line"})";

constexpr auto hostileArtist = "Hostile";

/// A store with a real server.
class Listener {
public:
    explicit Listener(const QString& origin) : machine(origin) {}

    /// Loads the lyrics of a new song and waits for the end.
    Case load(const char* artist = "Artist") {
        lyrics->load({std::to_string(++songs_), artist, "Album", 215000, std::nullopt});
        EXPECT_TRUE(test::waitUntil([this] { return lyrics->state->which() != Case::loading; }));
        return lyrics->state->which();
    }

    test::NetworkMachine machine;
    std::shared_ptr<LyricsStore> lyrics =
        std::make_shared<LyricsStore>(machine.tasks, machine.http, machine.constants);

private:
    int songs_ = 0;
};

/// Loads a song of the hostile artist; checks the limits of the main loop's turns and of memory.
void expectEnd(Listener& listener, Case expected) {
    const ProcessUse use;
    LoopWatch loop;
    const auto load = [&] {
        use.forgetPeakMemory();
        const qint64 before = use.peakMemoryKiB();
        EXPECT_EQ(listener.load(hostileArtist), expected);
        EXPECT_LT(use.peakMemoryKiB() - before, memoryLimitKiB);
    };
    EXPECT_LT(loop.longestTurnOf(load), LoopWatch::bearable());
}

struct Row {
    const char* name;
    Case state;
    HostileServer::Handler handler;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

std::string rowName(const testing::TestParamInfo<Row>& parameter) {
    return parameter.param.name;
}

/// Leaves requests for the hostile artist, and where they are redirected to, to `handler`; answers
/// others correctly.
HostileServer::Handler answering(HostileServer::Handler handler) {
    return [handler = std::move(handler)](const Exchange& exchange) {
        const bool isHostile =
            exchange.field(QStringLiteral("artist_name")) == QLatin1String(hostileArtist) ||
            exchange.path != "/api/get";
        if (isHostile)
            handler(exchange);
        else
            exchange.respond(200, goodBody);
    };
}

class HostileLyrics : public testing::TestWithParam<Row> {
protected:
    HostileServer server{answering(GetParam().handler)};
    Listener listener{server.origin()};
};

TEST_P(HostileLyrics, EndInTheirStateAndTheNextSongsAreLoaded) {
    expectEnd(listener, GetParam().state);
    EXPECT_EQ(listener.load(), Case::loaded);
    EXPECT_EQ(listener.machine.http.asked, 60s);
}

Row body(const char* name, Case state, const QByteArray& bytes) {
    return {name, state, [bytes](const Exchange& exchange) { exchange.respond(200, bytes); }};
}

Row headers(const char* name, Case state, const QByteArray& lines,
            const QByteArray& bytes = goodBody) {
    return {name, state,
            [=](const Exchange& exchange) { hostile::answer(exchange, lines, bytes); }};
}

const std::vector<Row> brokenTransfers{
    {"Dropped", Case::failed, [](const Exchange& e) { e.drop(); }},
    {"ResetInTheHeaders", Case::failed,
     [](const Exchange& e) {
         e.send("HTTP/1.1 200 OK\r\nContent-Le");
         hostile::reset(e);
     }},
    {"ResetInTheBody", Case::failed,
     [](const Exchange& e) {
         hostile::begin(e, "Content-Length: 1000\r\n", goodBody);
         hostile::reset(e);
     }},
    {"ResetInABodyWithoutLength", Case::failed,
     [](const Exchange& e) {
         hostile::begin(e, {}, goodBody.left(20));
         hostile::reset(e);
     }},
    headers("LengthTooLong", Case::failed, "Content-Length: 1000\r\n"),
    headers("LengthTooShort", Case::failed, "Content-Length: 20\r\n"),
    headers("LengthNegative", Case::failed, "Content-Length: -1\r\n"),
    headers("LengthNoNumber", Case::loaded, "Content-Length: many\r\n"),
    headers("LengthBeyondAllNumbers", Case::loaded,
            "Content-Length: 99999999999999999999999999\r\n"),
    headers("LengthsThatDiffer", Case::failed, "Content-Length: 5\r\nContent-Length: 33\r\n"),
    headers("ChunkOfNoNumber", Case::failed, "Transfer-Encoding: chunked\r\n",
            "zz\r\n" + goodBody + "\r\n0\r\n\r\n"),
    headers("ChunkOfNegativeLength", Case::failed, "Transfer-Encoding: chunked\r\n",
            "-5\r\n" + goodBody + "\r\n0\r\n\r\n"),
    headers("ChunkBeyondAllNumbers", Case::failed, "Transfer-Encoding: chunked\r\n",
            "ffffffffffffffffffff\r\n" + goodBody + "\r\n0\r\n\r\n"),
    headers("ChunksCutOff", Case::failed, "Transfer-Encoding: chunked\r\n",
            "14\r\n" + goodBody.left(20) + "\r\n"),
    headers("SaidToBeCompressed", Case::failed, "Content-Encoding: gzip\r\n"),
    headers("SaidNotToBeCompressed", Case::loaded, "Content-Encoding: identity\r\n"),
    headers("CompressedInAnUnknownWay", Case::failed, "Content-Encoding: unheard-of\r\n"),
    headers("OfAnotherContentType", Case::loaded, "Content-Type: image/png\r\n"),
    {"InterimAnswerFirst", Case::loaded,
     [](const Exchange& e) {
         e.send("HTTP/1.1 100 Continue\r\n\r\n");
         hostile::answer(e, {}, goodBody);
     }},
    {"RedirectLoop", Case::failed, [](const Exchange& e) { hostile::redirect(e, "/round"); }},
    {"RedirectToAFile", Case::failed,
     [](const Exchange& e) { hostile::redirect(e, "file:///etc/hostname"); }},
    {"RedirectToNothing", Case::failed, [](const Exchange& e) { hostile::redirect(e, ""); }},
    {"NoHttp", Case::failed,
     [](const Exchange& e) {
         e.send("220 mail.example ready\r\n");
         e.connection->disconnectFromHost();
     }},
};

INSTANTIATE_TEST_SUITE_P(BrokenTransfer, HostileLyrics, testing::ValuesIn(brokenTransfers),
                         rowName);

const std::vector<Row> endless{
    {"BodyOfAHundredMegabytes", Case::failed,
     [](const Exchange& e) {
         hostile::begin(e, "Content-Length: 100000000\r\n");
         hostile::pour(e, QByteArray(1'000'000, ' '));
     }},
    {"BodyOfAHundredMegabytesWithoutLength", Case::failed,
     [](const Exchange& e) {
         hostile::begin(e, {});
         hostile::pour(e, QByteArray(1'000'000, ' '));
     }},
    {"ErrorPageOfAHundredMegabytes", Case::failed,
     [](const Exchange& e) {
         e.send("HTTP/1.1 500 Error\r\nContent-Length: 100000000\r\n\r\n");
         hostile::pour(e, QByteArray(1'000'000, ' '));
     }},
    {"MissingPageOfAHundredMegabytes", Case::failed,
     [](const Exchange& e) {
         e.send("HTTP/1.1 404 Not Found\r\nContent-Length: 100000000\r\n\r\n");
         hostile::pour(e, QByteArray(1'000'000, ' '));
     }},
    {"CompressedBodyOfAHundredMegabytes", Case::failed,
     [](const Exchange& e) {
         hostile::answer(e, "Content-Encoding: br\r\n", hostile::brotliBomb());
     }},
};

INSTANTIATE_TEST_SUITE_P(Endless, HostileLyrics, testing::ValuesIn(endless), rowName);

QByteArray nested(const QByteArray& open, const QByteArray& close) {
    constexpr int depth = 100'000;
    return open.repeated(depth) + close.repeated(depth);
}

/// `piece` repeated up to the maximum size of an answer.
QByteArray filled(const QByteArray& piece) {
    constexpr qsizetype room = LrclibAPI::maximumBodyBytes - 1000;
    return R"({"syncedLyrics":")" + piece.repeated(room / piece.size()) + R"("})";
}

const std::vector<Row> hostileBodies{
    body("NestedArrays", Case::failed, nested("[", "]")),
    body("NestedArraysWithoutEnd", Case::failed, nested("[", "")),
    body("NestedObjects", Case::notFound, nested("{\"a\":", "}").replace(":}", ":0}")),
    body("NestedInAnotherKey", Case::loaded,
         R"({"other":)" + nested("[", "]") + "," + goodBody.mid(1)),
    body("NestedInTheLyrics", Case::failed, R"({"syncedLyrics":)" + nested("[", "]") + "}"),
    body("NothingButTags", Case::loaded, filled("[0:0]")),
    body("NothingButLines", Case::loaded, filled("[0:0.0]a\\n")),
    body("NothingButBrackets", Case::notFound, filled("[")),
    body("NothingButLineBreaks", Case::notFound, filled("\\n")),
    body("OneLineOfAMegabyte", Case::loaded,
         filled("x").replace(0, 18, R"({"syncedLyrics":"[00:00.00])")),
    body("NothingButEmptyKeys", Case::notFound,
         "{" + QByteArray("\"\":0,").repeated(180'000) + "\"a\":0}"),
    body("NothingButDifferentKeys", Case::notFound,
         [] {
             QByteArray keys = "{";
             for (int i = 0; i < 90'000; ++i)
                 keys += '"' + QByteArray::number(i) + "\":0,";
             return keys + "\"a\":0}";
         }()),
    body("NothingButEmptyObjects", Case::failed, "[" + QByteArray("{},").repeated(340'000) + "{}]"),
};

INSTANTIATE_TEST_SUITE_P(Body, HostileLyrics, testing::ValuesIn(hostileBodies), rowName);

/// The client's tests let the server stall later, too.
TEST(StallingLyrics, AreFailedWhenTheTimeIsUpAndTheNextSongsAreLoaded) {
    const HostileServer server(answering([](const Exchange&) {}));
    Listener listener(server.origin());
    listener.machine.http.patience = 150ms;
    expectEnd(listener, Case::failed);
    EXPECT_EQ(listener.machine.http.asked, 60s);
    listener.machine.http.patience = 60s;
    EXPECT_EQ(listener.load(), Case::loaded);
}

/// Limited only by the timeout: these keep the network thread busy, not the main loop.
class SlowlyPouringLyrics : public HostileLyrics {};

TEST_P(SlowlyPouringLyrics, AreFailedWhenTheTimeIsUp) {
    listener.machine.http.patience = 150ms;
    expectEnd(listener, Case::failed);
}

const std::vector<Row> slowlyPouring{
    {"AHundredMegabytesInTinyChunks", Case::failed,
     [](const Exchange& e) {
         hostile::begin(e, "Transfer-Encoding: chunked\r\n");
         hostile::pour(e, QByteArray("1\r\n \r\n").repeated(100'000));
     }},
    {"HeaderOfAHundredMegabytes", Case::failed,
     [](const Exchange& e) {
         e.send("HTTP/1.1 200 OK\r\nX: ");
         hostile::pour(e, QByteArray(1'000'000, 'x'));
     }},
    {"AHundredMegabytesOfInterimAnswers", Case::failed,
     [](const Exchange& e) {
         hostile::pour(e, QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(40'000));
     }},
};

INSTANTIATE_TEST_SUITE_P(Endless, SlowlyPouringLyrics, testing::ValuesIn(slowlyPouring), rowName);

class UnreachableLyrics : public testing::Test {
protected:
    /// The next answer is correct.
    static void expectFailed(const QString& origin) {
        Listener listener(origin);
        expectEnd(listener, Case::failed);
        const HostileServer good([](const Exchange& e) { e.respond(200, goodBody); });
        listener.machine.constants.lyricsOrigin = good.origin().toStdString();
        EXPECT_EQ(listener.load(), Case::loaded);
    }

    const HostileServer::Handler answersWell = [](const Exchange& e) { e.respond(200, goodBody); };
};

TEST_F(UnreachableLyrics, AreFailedWhenTheConnectionIsRefused) {
    QString refused;
    {
        const HostileServer closed(answersWell);
        refused = closed.origin();
    }
    expectFailed(refused);
}

TEST_F(UnreachableLyrics, AreFailedWhenTheNameCannotBeResolved) {
    // A name that resolvers must not look up.
    expectFailed(QStringLiteral("http://%1.example").arg(QString(64, u'a')));
}

TEST_F(UnreachableLyrics, AreFailedWhenTheServerSpeaksNoTls) {
    const HostileServer server([](const Exchange& e) { e.respond(200, goodBody); });
    Listener listener(server.origin().replace(QStringLiteral("http:"), QStringLiteral("https:")));
    listener.machine.http.patience = 300ms; // until the end of a request that never ends
    expectEnd(listener, Case::failed);
}

TEST_F(UnreachableLyrics, AreFailedWhenTheServerSpeaksTlsUnasked) {
    const HostileServer server(answersWell, test::selfSignedServer());
    expectFailed(server.origin().replace(QStringLiteral("https:"), QStringLiteral("http:")));
}

/// The result for each status with the same valid lyrics.
Case meaning(int status) {
    constexpr std::array lead{301, 302, 303, 305, 307, 308}; // without a Location
    if (status == 404)
        return Case::notFound;
    const bool isInterim = status < 200;
    const bool hasNoBody = status == 204 || status == 304;
    const bool leads = std::ranges::count(lead, status) > 0;
    return isInterim || hasNoBody || leads ? Case::failed : Case::loaded;
}

TEST(LyricsByStatus, AreLoadedWithEveryStatusThatComesWithABody) {
    const HostileServer server([](const Exchange& exchange) {
        exchange.respond(exchange.field(QStringLiteral("track_name")).toInt() + 99, goodBody);
    });
    Listener listener(server.origin());
    for (int status = 100; status < 600; ++status)
        EXPECT_EQ(listener.load(), meaning(status)) << status;
}

} // namespace
} // namespace brellowind
