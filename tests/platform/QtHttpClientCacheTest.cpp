// SPDX-License-Identifier: MIT

#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtMainLoop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>

namespace brellowind::platform {
namespace {

using testing::HasSubstr;
using testing::Not;

/// Answers each request with an empty document and remembers the last request as it was sent.
class LoopbackServer : public QObject {
public:
    LoopbackServer() {
        server_.listen(QHostAddress::LocalHost);
        connect(&server_, &QTcpServer::newConnection, this, [this] {
            auto* socket = server_.nextPendingConnection();
            request.clear();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        });
    }

    std::string url() const {
        return "http://127.0.0.1:" + std::to_string(server_.serverPort()) + "/latest.json";
    }

    QByteArray request;

private:
    void read(QTcpSocket* socket) {
        request += socket->readAll();
        if (!request.endsWith("\r\n\r\n"))
            return;
        socket->write("HTTP/1.1 200 OK\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
        socket->disconnectFromHost();
    }

    QTcpServer server_;
};

/// The client's request with `policy`, in lower case.
std::string sentWith(CachePolicy policy) {
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    LoopbackServer server;
    QtMainLoop mainLoop;
    QtHttpClient client{mainLoop};
    const HttpRequest request{.url = server.url(),
                              .headers = {},
                              .maximumBodyBytes = 0,
                              .timeout = std::chrono::seconds(10),
                              .cachePolicy = policy};
    QEventLoop loop;
    std::optional<HttpResult> result;
    const auto transfer = client.send(request, [&](HttpResult arrived) {
        result = std::move(arrived);
        loop.quit();
    });
    loop.exec();
    EXPECT_TRUE(std::holds_alternative<HttpResponse>(result.value()));
    return server.request.toLower().toStdString();
}

TEST(QtHttpClientCache, ReloadingTellsEveryCacheOnTheWayNotToAnswer) {
    EXPECT_THAT(sentWith(CachePolicy::reload), HasSubstr("\r\ncache-control: no-cache\r\n"));
}

TEST(QtHttpClientCache, OtherwiseTheRequestSaysNothingOfCaches) {
    EXPECT_THAT(sentWith(CachePolicy::protocol), Not(HasSubstr("cache-control")));
}

} // namespace
} // namespace brellowind::platform
