// SPDX-License-Identifier: MIT

#include "faults/HostileAnswers.h"

#include <QTimer>
#include <array>
#include <chrono>
#include <memory>
#include <sys/socket.h>

namespace brellowind::test::hostile {

using demo::Exchange;

void answer(const Exchange& exchange, const QByteArray& headers, const QByteArray& body) {
    begin(exchange, headers, body);
    if (exchange.connection)
        exchange.connection->disconnectFromHost();
}

void begin(const Exchange& exchange, const QByteArray& headers, const QByteArray& body) {
    exchange.send("HTTP/1.1 200 OK\r\n" + headers + "\r\n");
    exchange.send(body);
}

void drip(const Exchange& exchange, char byte) {
    auto* timer = new QTimer(exchange.connection);
    QObject::connect(timer, &QTimer::timeout, timer,
                     [exchange, byte] { exchange.send(QByteArray(1, byte)); });
    timer->start(std::chrono::milliseconds(5));
}

void pour(const Exchange& exchange, const QByteArray& piece) {
    auto* socket = exchange.connection.data();
    const auto left = std::make_shared<qsizetype>(hundredMegabytes);
    const auto more = [socket, piece, left] {
        *left -= piece.size();
        socket->write(piece);
    };
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket, [socket, left, more] {
        if (socket->bytesToWrite() == 0 && *left > 0)
            more();
    });
    more();
}

void reset(const Exchange& exchange) {
    constexpr linger atOnce{.l_onoff = 1, .l_linger = 0};
    exchange.connection->flush();
    ::setsockopt(static_cast<int>(exchange.connection->socketDescriptor()), SOL_SOCKET, SO_LINGER,
                 &atOnce, sizeof atOnce);
    exchange.connection->abort();
}

void redirect(const Exchange& exchange, const QByteArray& location) {
    exchange.send("HTTP/1.1 302 Found\r\nLocation: " + location +
                  "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    if (exchange.connection)
        exchange.connection->disconnectFromHost();
}

QByteArray brotliBomb() {
    // 100 million spaces, compressed by `brotli`.
    return QByteArray::fromBase64(
        "z///fwAkQOKxQHLv//n//w+ABEAcFoDu/T////8BkACIwwLQvf/n//8/ABIAcVgAuvf//P//B0ACIA4LQPf+P//B"
        "6wFIAMRhAehi1wM=");
}

} // namespace brellowind::test::hostile
