// SPDX-License-Identifier: MIT

#include "loopback/LoopbackServer.h"
#include "platform/qt/Download.h"
#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtMainLoop.h"

#include <QTimer>
#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

using namespace std::chrono_literals;
using demo::Exchange;
using demo::LoopbackServer;
using test::Download;
using test::httpResponse;
using test::waitUntil;

struct Behaviour {
    const char* name;
    LoopbackServer::Handler handler;

    friend void PrintTo(const Behaviour& behaviour, std::ostream* out) { *out << behaviour.name; }
};

std::string behaviourName(const testing::TestParamInfo<Behaviour>& parameter) {
    return parameter.param.name;
}

/// The client and a server that stores the connection of the last request.
class QtHttpClientAbort : public testing::Test {
protected:
    HttpRequest request(std::chrono::milliseconds timeout = 60s) const {
        auto request = Download::request(server.origin() + QStringLiteral("/"));
        request.timeout = timeout;
        return request;
    }

    bool isAsked() {
        return waitUntil([this] { return connection.has_value(); });
    }
    bool connectionCloses() {
        return waitUntil([this] { return connection && connection->isNull(); });
    }

    LoopbackServer::Handler answer = [](const Exchange&) {};
    std::optional<QPointer<QTcpSocket>> connection;
    LoopbackServer server{[this](const Exchange& exchange) {
        connection = exchange.connection;
        answer(exchange);
    }};
    QtMainLoop mainLoop;
    QtHttpClient client{mainLoop};
};

/// Sends `byte` repeatedly, with delays.
void drip(const Exchange& exchange, const QByteArray& byte) {
    auto* timer = new QTimer(exchange.connection);
    QObject::connect(timer, &QTimer::timeout, timer, [exchange, byte] { exchange.send(byte); });
    timer->start(5ms);
}

class QtHttpClientTimeout : public QtHttpClientAbort,
                            public testing::WithParamInterface<Behaviour> {};

TEST_P(QtHttpClientTimeout, IsATransportErrorAndClosesTheConnection) {
    answer = GetParam().handler;
    Download download(client, request(100ms));
    EXPECT_TRUE(download.fails());
    EXPECT_TRUE(!connection || connectionCloses()); // a busy machine may not get to ask
    EXPECT_EQ(download.completions(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Servers, QtHttpClientTimeout,
    testing::Values(
        Behaviour{"SaysNothing", [](const Exchange&) {}},
        Behaviour{"StallsInTheStatusLine", [](const Exchange& e) { e.send("HTTP/1.1 2"); }},
        Behaviour{"StallsInTheHeaders",
                  [](const Exchange& e) { e.send("HTTP/1.1 200 OK\r\nContent-Ty"); }},
        Behaviour{"StallsBeforeTheBody",
                  [](const Exchange& e) { e.send(httpResponse("Content-Length: 2\r\n")); }},
        Behaviour{"StallsInTheBody",
                  [](const Exchange& e) { e.send(httpResponse("Content-Length: 2\r\n", "{")); }},
        Behaviour{"StallsInABodyWithoutLength",
                  [](const Exchange& e) { e.send(httpResponse({}, "{}")); }},
        Behaviour{"StallsInAChunk",
                  [](const Exchange& e) {
                      e.send(httpResponse("Transfer-Encoding: chunked\r\n", "5\r\n{"));
                  }},
        Behaviour{"DripsHeaders",
                  [](const Exchange& e) {
                      e.send("HTTP/1.1 200 OK\r\nX: ");
                      drip(e, "x");
                  }},
        Behaviour{"DripsTheBody",
                  [](const Exchange& e) {
                      e.send(httpResponse("Content-Length: 1000000\r\n"));
                      drip(e, "x");
                  }},
        Behaviour{"DripsABodyWithoutLength",
                  [](const Exchange& e) {
                      e.send(httpResponse({}));
                      drip(e, "x");
                  }},
        Behaviour{"RedirectsForEverSlowly",
                  [](const Exchange& e) {
                      QTimer::singleShot(50ms, e.connection, [e] {
                          e.send("HTTP/1.1 302 Found\r\nLocation: /\r\nContent-Length: 0\r\n\r\n");
                      });
                  }}),
    behaviourName);

TEST_F(QtHttpClientAbort, ATimeoutAfterTheEndDoesNothing) {
    answer = [](const Exchange& exchange) { exchange.respond(200, "{}"); };
    Download download(client, request(200ms));
    ASSERT_TRUE(download.response().has_value());
    test::runFor(250ms);
    EXPECT_EQ(download.completions(), 1);
}

TEST_F(QtHttpClientAbort, DestroyingTheTransferClosesTheConnectionAndNeverCompletes) {
    Download download(client, request(100ms));
    ASSERT_TRUE(isAsked());
    download.abandon();
    EXPECT_TRUE(connectionCloses());
    test::runFor(150ms);
    EXPECT_EQ(download.completions(), 0);
}

TEST_F(QtHttpClientAbort, DestroyingTheTransferInTheMiddleOfTheBodyClosesTheConnection) {
    answer = [](const Exchange& exchange) {
        exchange.send(httpResponse({}));
        drip(exchange, "x");
    };
    Download download(client, request());
    ASSERT_TRUE(isAsked());
    test::runFor(50ms);
    download.abandon();
    EXPECT_TRUE(connectionCloses());
    EXPECT_EQ(download.completions(), 0);
}

TEST_F(QtHttpClientAbort, DestroyingTheTransferAtOnceNeverCompletes) {
    Download(client, request()).abandon();
    Download download(client, request());
    ASSERT_TRUE(isAsked());
    download.abandon();
    EXPECT_TRUE(connectionCloses());
}

TEST_F(QtHttpClientAbort, TheCompletionMayDestroyTheTransfer) {
    std::unique_ptr<Transfer> transfer;
    int completions = 0;
    const auto send = [&](const HttpRequest& request) {
        completions = 0;
        transfer = client.send(request, [&](HttpResult) {
            ++completions;
            transfer.reset();
        });
        EXPECT_TRUE(waitUntil([&] { return !transfer; }));
        test::runFor(20ms);
        EXPECT_EQ(completions, 1);
    };
    answer = [](const Exchange& exchange) { exchange.respond(200, "{}"); };
    send(request());
    answer = [](const Exchange& exchange) { exchange.respond(404, ""); };
    send(request());
    answer = [](const Exchange& exchange) { exchange.drop(); };
    send(request());
    answer = [](const Exchange&) {};
    send(request(50ms));
    answer = [](const Exchange& exchange) { exchange.respond(200, "more than ten bytes"); };
    auto small = request();
    small.maximumBodyBytes = 10;
    send(small);
}

TEST_F(QtHttpClientAbort, TheCompletionNeverComesFromTheCallThatSends) {
    for (const char* url : {"", "nonsense", "http://", "file:///etc/hostname", "data:,text"}) {
        bool sending = true;
        bool completed = false;
        const auto transfer =
            client.send(Download::request(QString::fromLatin1(url)), [&](const HttpResult& result) {
                EXPECT_FALSE(sending) << url;
                EXPECT_TRUE(std::holds_alternative<TransportError>(result)) << url;
                completed = true;
            });
        sending = false;
        EXPECT_TRUE(waitUntil([&] { return completed; })) << url;
    }
}

TEST_F(QtHttpClientAbort, TheClientMayGoBeforeItsTransfers) {
    auto shortLived = std::make_unique<QtHttpClient>(mainLoop);
    Download download(*shortLived, request());
    ASSERT_TRUE(isAsked());
    shortLived.reset();
    EXPECT_TRUE(connectionCloses());
    download.abandon();
    EXPECT_LE(download.completions(), 1);
}

TEST_F(QtHttpClientAbort, APortThatNobodyListensOnIsATransportError) {
    QString refused;
    {
        const LoopbackServer closed([](const Exchange&) {});
        refused = closed.origin();
    }
    Download download(client, refused);
    EXPECT_TRUE(download.fails());
}

class QtHttpClientBroken : public QtHttpClientAbort,
                           public testing::WithParamInterface<Behaviour> {};

TEST_P(QtHttpClientBroken, AnswerIsATransportError) {
    answer = [](const Exchange& exchange) {
        GetParam().handler(exchange);
        if (exchange.connection)
            exchange.connection->disconnectFromHost();
    };
    Download download(client, request());
    EXPECT_TRUE(download.fails());
    EXPECT_EQ(download.completions(), 1);
}

TEST_F(QtHttpClientAbort, ABodyShorterThanItsLengthIsATransportErrorWheneverTheConnectionCloses) {
    answer = [](const Exchange& exchange) {
        exchange.send(httpResponse("Content-Length: 100\r\n", "{\"a\":1}"));
        QTimer::singleShot(1ms, exchange.connection, [exchange] { exchange.drop(); });
    };
    for (int i = 0; i < 100; ++i) {
        Download download(client, request());
        ASSERT_TRUE(download.fails()) << "the " << i << "th time";
    }
}

QByteArray gibberish() {
    QByteArray bytes;
    for (int i = 0; i < 4096; ++i)
        bytes.append(static_cast<char>(i * 7 + 128));
    return bytes;
}

INSTANTIATE_TEST_SUITE_P(
    Servers, QtHttpClientBroken,
    testing::Values(
        Behaviour{"Dropped", [](const Exchange& e) { e.drop(); }},
        Behaviour{"Nothing", [](const Exchange&) {}},
        Behaviour{"OnlyAStatusLine", [](const Exchange& e) { e.send("HTTP/1.1 200 OK\r\n"); }},
        Behaviour{"HeadersCutOff",
                  [](const Exchange& e) { e.send("HTTP/1.1 200 OK\r\nContent-Type: te"); }},
        Behaviour{"BodyShorterThanItsLength",
                  [](const Exchange& e) {
                      e.send(httpResponse("Content-Length: 100\r\n", "{\"a\":1}"));
                  }},
        Behaviour{"ErrorPageShorterThanItsLength",
                  [](const Exchange& e) {
                      e.send("HTTP/1.1 500 Error\r\nContent-Length: 100\r\n\r\n{}");
                  }},
        Behaviour{"MissingPageShorterThanItsLength",
                  [](const Exchange& e) {
                      e.send("HTTP/1.1 404 Missing\r\nContent-Length: 100\r\n\r\n{}");
                  }},
        Behaviour{"CompressedGibberish",
                  [](const Exchange& e) {
                      e.send(httpResponse("Content-Encoding: gzip\r\nContent-Length: 4096\r\n",
                                          gibberish()));
                  }},
        Behaviour{"Gibberish", [](const Exchange& e) { e.send(gibberish()); }},
        Behaviour{"AnotherProtocol", [](const Exchange& e) { e.send("220 ready\r\n\r\n"); }},
        Behaviour{"StatusThatIsNoNumber",
                  [](const Exchange& e) { e.send("HTTP/1.1 abc OK\r\n\r\n{}"); }}),
    behaviourName);

} // namespace
} // namespace brellowind::platform
