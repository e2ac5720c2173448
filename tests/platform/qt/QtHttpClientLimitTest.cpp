// SPDX-License-Identifier: MIT

#include "loopback/LoopbackServer.h"
#include "platform/qt/Download.h"
#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtMainLoop.h"

#include <arpa/inet.h>
#include <atomic>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace brellowind::platform {
namespace {

using demo::Exchange;
using demo::LoopbackServer;
using test::Download;
using test::httpResponse;
using test::waitUntil;

QByteArray contentLength(qsizetype size) {
    return "Content-Length: " + QByteArray::number(size) + "\r\n";
}

/// The client, and a server that answers every request with `bytes` and optionally closes.
class QtHttpClientLimit : public testing::Test {
protected:
    static constexpr qsizetype limit = static_cast<qsizetype>(Download::limit);

    bool connectionClosed() {
        return waitUntil([this] { return connection && connection->isNull(); });
    }

    void expectPasses(const QByteArray& body) {
        Download download(client, server.origin());
        const auto response = download.response();
        ASSERT_TRUE(response.has_value());
        EXPECT_TRUE(response->body == body.toStdString());
    }

    void expectFails() {
        Download download(client, server.origin());
        EXPECT_TRUE(download.fails());
        EXPECT_EQ(download.completions(), 1);
    }

    /// For a body that exceeds the limit before its end.
    void expectFailsAndCloses() {
        expectFails();
        EXPECT_TRUE(connectionClosed());
    }

    QByteArray bytes;
    bool closes = false;
    std::optional<QPointer<QTcpSocket>> connection;
    LoopbackServer server{[this](const Exchange& exchange) {
        connection = exchange.connection;
        exchange.send(bytes);
        if (closes)
            exchange.connection->disconnectFromHost();
    }};
    QtMainLoop mainLoop;
    QtHttpClient client{mainLoop};
};

TEST_F(QtHttpClientLimit, ABodyOfExactlyTheLimitPasses) {
    const QByteArray body(limit, 'x');
    bytes = httpResponse(contentLength(limit), body);
    expectPasses(body);
}

TEST_F(QtHttpClientLimit, ABodyOfExactlyTheLimitInChunksPasses) {
    const QByteArray body(limit, 'x');
    bytes = httpResponse("Transfer-Encoding: chunked\r\n",
                         QByteArray::number(limit, 16) + "\r\n" + body + "\r\n0\r\n\r\n");
    expectPasses(body);
}

TEST_F(QtHttpClientLimit, OneByteMoreFails) {
    bytes = httpResponse(contentLength(limit + 1), QByteArray(limit + 1, 'x'));
    expectFails();
}

TEST_F(QtHttpClientLimit, ALongerBodyFailsAndClosesTheConnectionBeforeItsEnd) {
    bytes = httpResponse(contentLength(20 * limit), QByteArray(2 * limit, 'x'));
    expectFailsAndCloses();
}

TEST_F(QtHttpClientLimit, ABodyOfExactlyTheLimitThatEndsWithTheConnectionPasses) {
    const QByteArray body(limit, 'x');
    bytes = httpResponse({}, body);
    closes = true;
    expectPasses(body);
}

TEST_F(QtHttpClientLimit, OneByteMoreFailsWithoutWaitingForTheEnd) {
    bytes = httpResponse({}, QByteArray(limit + 1, 'x')); // without an end
    expectFailsAndCloses();
}

TEST_F(QtHttpClientLimit, OneByteMoreThatEndsWithTheConnectionFails) {
    bytes = httpResponse({}, QByteArray(limit + 1, 'x'));
    closes = true;
    expectFails();
}

TEST_F(QtHttpClientLimit, OneByteMoreInChunksFails) {
    bytes = httpResponse("Transfer-Encoding: chunked\r\n", QByteArray::number(limit + 1, 16) +
                                                               "\r\n" + QByteArray(limit + 1, 'x') +
                                                               "\r\n0\r\n\r\n");
    expectFails();
}

TEST_F(QtHttpClientLimit, HoldsForAnErrorPageToo) {
    bytes =
        "HTTP/1.1 500 Error\r\n" + contentLength(limit + 1) + "\r\n" + QByteArray(limit + 1, 'x');
    expectFails();
}

TEST_F(QtHttpClientLimit, MayBeNothing) {
    auto request = Download::request(server.origin());
    request.maximumBodyBytes = 0;
    bytes = httpResponse(contentLength(0));
    EXPECT_TRUE(Download(client, request).response().has_value());
    bytes = httpResponse(contentLength(1), "x");
    EXPECT_TRUE(Download(client, request).fails());
}

TEST_F(QtHttpClientLimit, ABodyWithoutEndFailsWithoutReadingAhead) {
    const QByteArray piece(1 << 20, 'x');
    qint64 sent = 0;
    server.handler = [&](const Exchange& exchange) {
        connection = exchange.connection;
        exchange.send(httpResponse({}));
        auto* socket = exchange.connection.data();
        const auto more = [&, socket] {
            sent += piece.size();
            socket->write(piece);
        };
        QObject::connect(socket, &QTcpSocket::bytesWritten, socket, [socket, more] {
            if (socket->bytesToWrite() == 0)
                more();
        });
        more();
    };
    expectFailsAndCloses();
    EXPECT_LT(sent, 10 * limit);
}

/// Answers one request with a huge body, as fast as it is read, until nothing is read for a while.
class Flood {
public:
    static constexpr qint64 size = 256 << 20;

    Flood() {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        EXPECT_EQ(::bind(listener_, reinterpret_cast<sockaddr*>(&address), length), 0);
        EXPECT_EQ(::listen(listener_, 1), 0);
        EXPECT_EQ(::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length), 0);
        port_ = ntohs(address.sin_port);
        thread_ = std::thread([this] { pour(); });
    }
    ~Flood() { ::close(listener_); }

    QString url() const { return QStringLiteral("http://127.0.0.1:%1/").arg(port_); }
    bool hasBegun() const { return begun_; }

    /// Blocks. Returns the number of bytes that were read.
    qint64 taken() {
        thread_.join();
        return taken_;
    }

private:
    void pour() {
        const int connection = ::accept(listener_, nullptr, nullptr);
        const timeval patience{.tv_sec = 0, .tv_usec = 200'000};
        ::setsockopt(connection, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
        const QByteArray head = httpResponse(contentLength(size));
        ::send(connection, head.constData(), static_cast<std::size_t>(head.size()), MSG_NOSIGNAL);
        begun_ = true;
        const std::vector<char> piece(1 << 20, 'x');
        while (taken_ < size) {
            const auto count = ::send(connection, piece.data(), piece.size(), MSG_NOSIGNAL);
            if (count <= 0)
                break;
            taken_ += count;
        }
        ::close(connection);
    }

    int listener_ = ::socket(AF_INET, SOCK_STREAM, 0);
    int port_ = 0;
    std::atomic<bool> begun_ = false;
    qint64 taken_ = 0;
    std::thread thread_;
};

TEST_F(QtHttpClientLimit, ABodyThatComesWhileTheProgramIsBusyWaitsOnTheNetwork) {
    Flood flood;
    Download download(client, flood.url());
    ASSERT_TRUE(waitUntil([&] { return flood.hasBegun(); }));
    EXPECT_LT(flood.taken(), Flood::size / 4); // while the program's main loop is blocked
    EXPECT_TRUE(download.fails());
}

} // namespace
} // namespace brellowind::platform
