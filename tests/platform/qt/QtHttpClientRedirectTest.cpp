// SPDX-License-Identifier: MIT

#include "loopback/LoopbackServer.h"
#include "platform/qt/Certificate.h"
#include "platform/qt/Download.h"
#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtMainLoop.h"

#include <gtest/gtest.h>
#include <vector>

namespace brellowind::platform {
namespace {

using demo::Exchange;
using demo::LoopbackServer;
using test::Download;
using test::TrustedCertificate;

/// A server that answers "/goal" and redirects other requests to `location`.
class Signpost {
public:
    Signpost() : server([this](const Exchange& exchange) { answer(exchange); }) {}
    explicit Signpost(const QSslConfiguration& tls)
        : server([this](const Exchange& exchange) { answer(exchange); }, tls) {}

    QString url(const char* path) const { return server.origin() + QLatin1String(path); }

    QByteArray location;
    QByteArray status = "302 Found";
    QByteArray body;
    std::vector<Exchange> exchanges;
    LoopbackServer server;

private:
    void answer(const Exchange& exchange) {
        exchanges.push_back(exchange);
        if (exchange.path == "/goal")
            return exchange.respond(200, "arrived");
        exchange.send("HTTP/1.1 " + status + "\r\nLocation: " + location +
                      "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    }
};

class QtHttpClientRedirect : public testing::Test {
protected:
    bool arrives(const QString& url) {
        Download download(client, url);
        const auto response = download.response();
        return response && response->status == 200 && response->body == "arrived";
    }

    bool fails(const QString& url) {
        Download download(client, url);
        return download.fails();
    }

    /// One certificate for all tests: making one takes a while.
    static const QSslConfiguration& tls() {
        static const auto configuration = test::selfSignedServer();
        return configuration;
    }

    QtMainLoop mainLoop;
    QtHttpClient client{mainLoop};
};

TEST_F(QtHttpClientRedirect, IsFollowedWhateverItsKind) {
    Signpost signpost;
    for (const char* status : {"301 Moved", "302 Found", "303 See", "307 Again", "308 For good"}) {
        signpost.status = status;
        for (const QByteArray& location :
             {QByteArray("/goal"), QByteArray("goal"), signpost.url("/goal").toLatin1()}) {
            signpost.location = location;
            EXPECT_TRUE(arrives(signpost.url("/start"))) << status << " " << location.constData();
        }
    }
}

TEST_F(QtHttpClientRedirect, LeadsToAnotherServerWithTheSameAgentAndNoReferer) {
    Signpost near;
    Signpost far;
    near.location = far.url("/goal?a=%2B%26").toLatin1();
    auto request = Download::request(near.url("/start"));
    request.headers = {{"User-Agent", "Brellowind"}};
    Download download(client, request);
    ASSERT_TRUE(download.response().has_value());
    ASSERT_EQ(far.exchanges.size(), 1U);
    EXPECT_EQ(far.exchanges[0].query, "a=%2B%26");
    EXPECT_EQ(far.exchanges[0].header("user-agent"), "Brellowind");
    EXPECT_TRUE(far.exchanges[0].header("referer").isNull());
}

TEST_F(QtHttpClientRedirect, ItsOwnBodyDoesNotCount) {
    Signpost signpost;
    signpost.location = "/goal";
    signpost.body = QByteArray(100, 'x');
    auto request = Download::request(signpost.url("/start"));
    request.maximumBodyBytes = 10;
    Download download(client, request);
    const auto response = download.response();
    ASSERT_TRUE(response.has_value());
    EXPECT_EQ(response->body, "arrived");
}

TEST_F(QtHttpClientRedirect, ItsOwnLengthIsNotThatOfTheBodyItLeadsTo) {
    const LoopbackServer goal([](const Exchange& exchange) {
        exchange.send(test::httpResponse({}, "arrived"));
        exchange.connection->disconnectFromHost();
    });
    Signpost signpost;
    signpost.location = goal.origin().toLatin1();
    signpost.body = QByteArray(1000, 'x');
    for (int i = 0; i < 300; ++i)
        ASSERT_TRUE(arrives(signpost.url("/start"))) << "the " << i << "th time";
}

TEST_F(QtHttpClientRedirect, ItsOwnBodyIsNotWaitedFor) {
    LoopbackServer goal([](const Exchange& exchange) { exchange.respond(200, "arrived"); });
    const LoopbackServer signpost([to = goal.origin().toLatin1()](const Exchange& exchange) {
        exchange.send("HTTP/1.1 302 Found\r\nLocation: " + to +
                      "\r\nContent-Length: 1000\r\n\r\nthe beginning of a page");
    });
    EXPECT_TRUE(arrives(signpost.origin()));
}

TEST_F(QtHttpClientRedirect, EndsWhenItGoesRoundInCircles) {
    Signpost signpost;
    signpost.location = "/again";
    EXPECT_TRUE(fails(signpost.url("/start")));
    EXPECT_LT(signpost.exchanges.size(), 100U);
}

TEST_F(QtHttpClientRedirect, LeadsNowhereButToWebAddresses) {
    Signpost signpost;
    for (const char* location : {"file:///etc/hostname", "data:text/plain,hello",
                                 "ftp://127.0.0.1/", "qrc:/", "nonsense:"}) {
        signpost.location = location;
        EXPECT_TRUE(fails(signpost.url("/start"))) << location;
    }
}

TEST_F(QtHttpClientRedirect, FromHttpToHttpsIsFollowed) {
    const TrustedCertificate trust(tls());
    Signpost plain;
    Signpost secure(tls());
    plain.location = secure.url("/goal").toLatin1();
    EXPECT_TRUE(arrives(plain.url("/start")));
}

TEST_F(QtHttpClientRedirect, FromHttpsToHttpsIsFollowed) {
    const TrustedCertificate trust(tls());
    Signpost secure(tls());
    secure.location = "/goal";
    EXPECT_TRUE(arrives(secure.url("/start")));
}

TEST_F(QtHttpClientRedirect, AServerThatOffersHttp2IsAskedInHttp1) {
    const TrustedCertificate trust(tls());
    auto offer = tls();
    offer.setAllowedNextProtocols({"h2", "http/1.1"});
    Signpost secure(offer); // does not support HTTP/2
    secure.location = "/goal";
    EXPECT_TRUE(arrives(secure.url("/start")));
}

TEST_F(QtHttpClientRedirect, FromHttpsToHttpIsRefusedBeforeAnythingIsSent) {
    const TrustedCertificate trust(tls());
    Signpost plain;
    Signpost secure(tls());
    secure.location = plain.url("/goal").toLatin1();
    EXPECT_TRUE(fails(secure.url("/start")));
    EXPECT_EQ(secure.exchanges.size(), 1U);
    EXPECT_TRUE(plain.exchanges.empty());
}

TEST_F(QtHttpClientRedirect, FromHttpThroughHttpsBackToHttpIsRefused) {
    const TrustedCertificate trust(tls());
    Signpost plain;
    Signpost secure(tls());
    plain.location = secure.url("/start").toLatin1();
    secure.location = plain.url("/goal").toLatin1();
    EXPECT_TRUE(fails(plain.url("/start")));
    for (const auto& exchange : plain.exchanges)
        EXPECT_EQ(exchange.path, "/start");
}

TEST_F(QtHttpClientRedirect, ToAServerThatNobodyTrustsFails) {
    Signpost plain;
    Signpost secure(tls());
    plain.location = secure.url("/goal").toLatin1();
    EXPECT_TRUE(fails(plain.url("/start")));
    EXPECT_TRUE(secure.exchanges.empty());
}

TEST_F(QtHttpClientRedirect, ACertificateThatNobodyTrustsIsATransportErrorAndNothingIsSent) {
    Signpost secure(tls());
    EXPECT_TRUE(fails(secure.url("/goal")));
    EXPECT_TRUE(secure.exchanges.empty());
}

TEST_F(QtHttpClientRedirect, ALargeBodyArrivesWholeOverTls) {
    const TrustedCertificate trust(tls());
    const QByteArray body(static_cast<qsizetype>(Download::limit), 'x');
    const LoopbackServer secure([&](const Exchange& exchange) { exchange.respond(200, body); },
                                tls());
    Download download(client, secure.origin());
    const auto response = download.response();
    ASSERT_TRUE(response.has_value());
    EXPECT_TRUE(response->body == body.toStdString());
}

TEST_F(QtHttpClientRedirect, ACertificateForAnotherNameIsATransportError) {
    const TrustedCertificate trust(tls());
    Signpost secure(tls());
    ASSERT_TRUE(arrives(secure.url("/goal")));
    const auto asked = secure.exchanges.size();
    EXPECT_TRUE(fails(
        secure.url("/goal").replace(QStringLiteral("127.0.0.1"), QStringLiteral("localhost"))));
    EXPECT_EQ(secure.exchanges.size(), asked);
}

} // namespace
} // namespace brellowind::platform
