// SPDX-License-Identifier: MIT

#include "loopback/LoopbackServer.h"
#include "platform/qt/Download.h"
#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtMainLoop.h"

#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

using demo::Exchange;
using demo::LoopbackServer;
using test::Download;

/// The client, and a server with a Content-Encoding.
class QtHttpClientEncoding : public testing::Test {
protected:
    /// The body that the client receives for `sent` with the header; nullopt on failure.
    std::optional<std::string> body(const QByteArray& encoding, const QByteArray& sent) {
        handler = [=](const Exchange& exchange) {
            exchange.send(test::httpResponse(
                "Content-Encoding: " + encoding +
                    "\r\nContent-Length: " + QByteArray::number(sent.size()) + "\r\n",
                sent));
        };
        const auto answer = Download(client, server.origin()).response();
        return answer ? std::optional(answer->body) : std::nullopt;
    }

    const QByteArray gzipped =
        QByteArray::fromHex("1f8b08000000000002032b49ad280100c7a78b3b04000000"); ///< "text"
    LoopbackServer::Handler handler;
    QByteArray asked;
    LoopbackServer server{[this](const Exchange& exchange) {
        asked = exchange.header("accept-encoding");
        handler(exchange);
    }};
    QtMainLoop mainLoop;
    QtHttpClient client{mainLoop};
};

TEST_F(QtHttpClientEncoding, MayBeAbsentOrIdentity) {
    for (const char* encoding : {"", "identity", "Identity", " identity "})
        EXPECT_EQ(body(encoding, "text"), "text") << encoding;
    EXPECT_EQ(asked, "identity");
}

TEST_F(QtHttpClientEncoding, ThatCompressesIsATransportError) {
    for (const char* encoding : {"gzip", "x-gzip", "GZip", "gzip, gzip", "identity, gzip"})
        EXPECT_EQ(body(encoding, gzipped), std::nullopt) << encoding;
    EXPECT_EQ(body("deflate", qCompress("text").mid(4)), std::nullopt);
    for (const char* encoding : {"br", "zstd", "compress", "unheard-of"})
        EXPECT_EQ(body(encoding, "text"), std::nullopt) << encoding;
}

TEST_F(QtHttpClientEncoding, OfABodyThatIsEmptyDoesNotMatter) {
    EXPECT_EQ(body("gzip", {}), "");
}

TEST_F(QtHttpClientEncoding, IsIdentityAfterARedirectToo) {
    const LoopbackServer signpost([to = server.origin().toLatin1()](const Exchange& exchange) {
        exchange.send("HTTP/1.1 302 Found\r\nLocation: " + to +
                      "\r\nContent-Encoding: br\r\nContent-Length: 2\r\n\r\n{}");
    });
    handler = [](const Exchange& exchange) { exchange.respond(200, "text"); };
    const auto answer = Download(client, signpost.origin()).response();
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->body, "text");
    EXPECT_EQ(asked, "identity");
}

} // namespace
} // namespace brellowind::platform
