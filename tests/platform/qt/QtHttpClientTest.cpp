// SPDX-License-Identifier: MIT

#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtMainLoop.h"

#include "loopback/LoopbackServer.h"
#include "platform/qt/Download.h"
#include "session/ProcessUse.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace brellowind::platform {
namespace {

using demo::Exchange;
using demo::LoopbackServer;
using test::Download;
using test::waitUntil;

/// The client and a server that stores the requests.
class QtHttpClientTest : public testing::Test {
protected:
    QString url(const char* target) const { return server.origin() + QLatin1String(target); }

    std::vector<Exchange> exchanges;
    LoopbackServer::Handler answer = [](const Exchange& exchange) { exchange.respond(200, "{}"); };
    LoopbackServer server{[this](const Exchange& exchange) {
        exchanges.push_back(exchange);
        answer(exchange);
    }};
    QtMainLoop mainLoop;
    QtHttpClient client{mainLoop};
};

TEST_F(QtHttpClientTest, SendsTheBytesOfTheURLUnchanged) {
    const QByteArray query =
        "a=1%2B1%20%26%20%23%25%3B%3D%22%3F%2F&b=Gr%C3%B6%C3%9Fe%20%E6%97%A5&c=x+y&d=(!*'),;:@/?";
    Download download(client, server.origin() + QStringLiteral("/api/get%2Fthis?") +
                                  QString::fromLatin1(query));
    ASSERT_TRUE(download.response().has_value());
    ASSERT_EQ(exchanges.size(), 1U);
    EXPECT_EQ(exchanges[0].path, "/api/get%2Fthis");
    EXPECT_EQ(exchanges[0].query, query);
}

TEST_F(QtHttpClientTest, SendsEveryByteOfAQueryValueSoThatFormsDecodeItBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const QByteArray escaped = '%' + QByteArray(1, static_cast<char>(byte)).toHex().toUpper();
        Download download(client,
                          server.origin() + QStringLiteral("/?a=") + QString::fromLatin1(escaped));
        ASSERT_TRUE(download.response().has_value()) << escaped.constData();
        QByteArray value = exchanges.back().query.mid(2);
        EXPECT_FALSE(value.contains('+')) << escaped.constData();
        EXPECT_EQ(QByteArray::fromPercentEncoding(value), QByteArray(1, static_cast<char>(byte)))
            << escaped.constData();
    }
}

TEST_F(QtHttpClientTest, SendsTheHeadersGivenOnceAndNoTraceOfThePerson) {
    auto request = Download::request(url("/"));
    request.headers = {{"User-Agent", "Brellowind v0.1 (https://brellowind.example)"},
                       {"X-Other", "value"}};
    Download download(client, request);
    ASSERT_TRUE(download.response().has_value());
    QList<QByteArray> names;
    for (const auto& [name, value] : exchanges[0].headers)
        names.append(name);
    EXPECT_EQ(names.count("user-agent"), 1);
    EXPECT_EQ(exchanges[0].header("user-agent"), "Brellowind v0.1 (https://brellowind.example)");
    EXPECT_EQ(exchanges[0].header("x-other"), "value");
    EXPECT_FALSE(names.contains("referer"));
    EXPECT_FALSE(names.contains("cookie"));
    EXPECT_FALSE(names.contains("authorization"));
}

TEST_F(QtHttpClientTest, SendsNoCookieBack) {
    answer = [](const Exchange& exchange) {
        exchange.send(test::httpResponse("Set-Cookie: a=b; Path=/\r\nContent-Length: 0\r\n"));
    };
    for (int i = 0; i < 2; ++i) {
        Download download(client, url("/"));
        ASSERT_TRUE(download.response().has_value());
    }
    ASSERT_EQ(exchanges.size(), 2U);
    EXPECT_TRUE(exchanges[1].header("cookie").isNull());
}

TEST_F(QtHttpClientTest, AStatusArrivesWithTheBody) {
    for (const int status : {200, 404, 500}) {
        answer = [status](const Exchange& exchange) { exchange.respond(status, "the body"); };
        Download download(client, url("/"));
        const auto response = download.response();
        ASSERT_TRUE(response.has_value()) << status;
        EXPECT_EQ(response->status, status);
        EXPECT_EQ(response->body, "the body");
    }
    EXPECT_EQ(exchanges.size(), 3U);
}

TEST_F(QtHttpClientTest, AnAnswerMayHaveNoBody) {
    for (const char* status : {"204 No Content", "304 Not Modified"}) {
        answer = [status](const Exchange& exchange) {
            exchange.send(QByteArray("HTTP/1.1 ") + status + "\r\n\r\n");
        };
        Download download(client, url("/"));
        const auto response = download.response();
        ASSERT_TRUE(response.has_value()) << status;
        EXPECT_EQ(response->status, QByteArray(status).left(3).toInt());
        EXPECT_EQ(response->body, "");
    }
}

TEST_F(QtHttpClientTest, JoinsAChunkedBody) {
    answer = [](const Exchange& exchange) {
        exchange.send(test::httpResponse("Transfer-Encoding: chunked\r\n",
                                         "3\r\none\r\n4\r\n two\r\n0\r\n\r\n"));
    };
    Download download(client, url("/"));
    const auto response = download.response();
    ASSERT_TRUE(response.has_value());
    EXPECT_EQ(response->body, "one two");
}

TEST_F(QtHttpClientTest, KeepsBytesThatAreNoText) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.append(static_cast<char>(byte));
    answer = [bytes](const Exchange& exchange) { exchange.respond(200, bytes, "image/png"); };
    Download download(client, url("/"));
    ASSERT_TRUE(download.response().has_value());
    EXPECT_EQ(download.response()->body, bytes.toStdString());
}

TEST_F(QtHttpClientTest, AnswersEachOfManyTransfersAtOnce) {
    answer = [](const Exchange& exchange) { exchange.respond(200, exchange.path); };
    std::vector<std::unique_ptr<Download>> downloads;
    for (int i = 0; i < 20; ++i)
        downloads.push_back(std::make_unique<Download>(client, url("/") + QString::number(i)));
    for (int i = 0; i < 20; ++i) {
        const auto response = downloads[static_cast<std::size_t>(i)]->response();
        ASSERT_TRUE(response.has_value());
        EXPECT_EQ(response->body, "/" + std::to_string(i));
    }
}

TEST_F(QtHttpClientTest, ManyTransfersInARowLeaveNoSocketBehind) {
    const auto fetchOnce = [this] {
        Download download(client, url("/"));
        return download.response().has_value();
    };
    const auto isQuiet = [this] {
        return waitUntil([this] {
            return std::ranges::all_of(
                exchanges, [](const Exchange& exchange) { return exchange.connection.isNull(); });
        });
    };
    for (int i = 0; i < 5; ++i)
        ASSERT_TRUE(fetchOnce());
    ASSERT_TRUE(isQuiet());
    const test::ProcessUse use;
    const auto before = use.descriptors();
    for (int i = 0; i < 200; ++i)
        ASSERT_TRUE(fetchOnce());
    ASSERT_TRUE(isQuiet());
    EXPECT_LE(use.descriptors(), before + 6); // the client keeps at most six for the host
}

} // namespace
} // namespace brellowind::platform
