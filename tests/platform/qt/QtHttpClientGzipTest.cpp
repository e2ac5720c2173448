#include "loopback/LoopbackServer.h"
#include "platform/qt/Download.h"
#include "platform/qt/Gzip.h"
#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtMainLoop.h"

#include <QTimer>
#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

using demo::Exchange;
using demo::LoopbackServer;
using test::Download;
using test::gzip;

/// The client, and a server that sends a body that is compressed as it says, or not.
class QtHttpClientGzip : public testing::Test {
protected:
    /// What becomes of `body` with the header; nothing when the transfer fails.
    std::optional<HttpResponse> response(const QByteArray& encoding, const QByteArray& body,
                                         const QByteArray& status = "200 OK") {
        handler = [=](const Exchange& exchange) {
            exchange.send("HTTP/1.1 " + status + "\r\nContent-Encoding: " + encoding +
                          "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" +
                          body);
        };
        return Download(client, server.origin()).response();
    }

    std::optional<std::string> body(const QByteArray& encoding, const QByteArray& sent) {
        const auto answer = response(encoding, sent);
        return answer ? std::optional(answer->body) : std::nullopt;
    }

    LoopbackServer::Handler handler;
    QByteArray asked;
    LoopbackServer server{[this](const Exchange& exchange) {
        asked = exchange.header("accept-encoding");
        handler(exchange);
    }};
    QtMainLoop mainLoop;
    QtHttpClient client{mainLoop};
};

TEST_F(QtHttpClientGzip, IsAllThatIsAskedFor) {
    EXPECT_EQ(body("gzip", gzip("text")), "text");
    EXPECT_EQ(asked, "gzip");
}

TEST_F(QtHttpClientGzip, IsUnpackedByAnyOfItsNames) {
    const QByteArray text(100'000, 'x');
    for (const char* name : {"gzip", "x-gzip", "GZip", " gzip "})
        EXPECT_EQ(body(name, gzip(text)), text.toStdString()) << name;
}

TEST_F(QtHttpClientGzip, IsUnpackedFromChunks) {
    handler = [packed = gzip("text")](const Exchange& exchange) {
        const auto chunk = [](const QByteArray& bytes) {
            return QByteArray::number(bytes.size(), 16) + "\r\n" + bytes + "\r\n";
        };
        exchange.send(test::httpResponse("Content-Encoding: gzip\r\nTransfer-Encoding: chunked\r\n",
                                         chunk(packed.left(9)) + chunk(packed.mid(9)) + chunk({})));
    };
    const auto answer = Download(client, server.origin()).response();
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->body, "text");
}

TEST_F(QtHttpClientGzip, OfAnErrorPageMayBeLongerThanThePage) {
    const auto answer = response("gzip", gzip("{}"), "500 Error");
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->status, 500);
    EXPECT_EQ(answer->body, "{}");
}

TEST_F(QtHttpClientGzip, OfSeveralMembersIsJoined) {
    EXPECT_EQ(body("gzip", gzip("one") + gzip(", two")), "one, two");
}

TEST_F(QtHttpClientGzip, MayBeNothing) {
    EXPECT_EQ(body("gzip", {}), "");
}

TEST_F(QtHttpClientGzip, ThatIsNoneIsATransportError) {
    EXPECT_EQ(body("gzip", "{}"), std::nullopt);
    EXPECT_EQ(body("gzip", qCompress("{}").mid(4)), std::nullopt);
}

TEST_F(QtHttpClientGzip, WithMoreBehindItIsATransportError) {
    EXPECT_EQ(body("gzip", gzip("{}") + "{}"), std::nullopt);
}

TEST_F(QtHttpClientGzip, ThatEndsTooEarlyIsATransportErrorWhateverItsLength) {
    EXPECT_EQ(body("gzip", gzip("{}").chopped(1)), std::nullopt);
}

/// In chunks nothing but the file itself tells where it ends, since the last chunk may be missed.
TEST_F(QtHttpClientGzip, CutOffBetweenChunksIsATransportErrorWheneverTheConnectionCloses) {
    const QByteArray packed = gzip("{\"a\":1}").chopped(4);
    handler = [packed](const Exchange& exchange) {
        exchange.send(
            test::httpResponse("Content-Encoding: gzip\r\nTransfer-Encoding: chunked\r\n",
                               QByteArray::number(packed.size(), 16) + "\r\n" + packed + "\r\n"));
        QTimer::singleShot(1, exchange.connection, [exchange] { exchange.drop(); });
    };
    for (int i = 0; i < 100; ++i)
        ASSERT_TRUE(Download(client, server.origin()).fails()) << "the " << i << "th time";
}

TEST_F(QtHttpClientGzip, BodyThatIsNotCompressedMaySaySo) {
    EXPECT_EQ(body("identity", "{}"), "{}");
    EXPECT_EQ(body("Identity", "{}"), "{}");
    EXPECT_EQ(body("", "{}"), "{}");
}

TEST_F(QtHttpClientGzip, IsTheOnlyCompressionThatIsTaken) {
    EXPECT_EQ(body("deflate", qCompress("{}").mid(4)), std::nullopt);
    for (const char* other : {"br", "zstd", "compress", "unheard-of", "gzip, gzip", "identity, br"})
        EXPECT_EQ(body(other, "{}"), std::nullopt) << other;
}

TEST_F(QtHttpClientGzip, IsAskedForOfWhereARedirectLeads) {
    const LoopbackServer signpost([to = server.origin().toLatin1()](const Exchange& exchange) {
        exchange.send("HTTP/1.1 302 Found\r\nLocation: " + to +
                      "\r\nContent-Encoding: br\r\nContent-Length: 2\r\n\r\n{}");
    });
    handler = [](const Exchange& exchange) {
        exchange.send(
            test::httpResponse("Content-Encoding: gzip\r\nConnection: close\r\n", gzip("text")));
        exchange.connection->disconnectFromHost();
    };
    const auto answer = Download(client, signpost.origin()).response();
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->body, "text");
    EXPECT_EQ(asked, "gzip");
}

} // namespace
} // namespace brellowind::platform
