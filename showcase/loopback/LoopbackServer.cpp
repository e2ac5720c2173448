// SPDX-License-Identifier: MIT

#include "loopback/LoopbackServer.h"

#include <QSslConfiguration>
#include <QSslServer>
#include <QUrl>
#include <utility>

namespace brellowind::demo {
namespace {

Exchange parse(const QByteArray& head, QTcpSocket* connection) {
    Exchange exchange;
    exchange.connection = connection;
    const QList<QByteArray> lines = head.split('\n');
    const QByteArray target = lines.constFirst().split(' ').value(1);
    const qsizetype mark = target.indexOf('?');
    exchange.path = mark < 0 ? target : target.left(mark);
    exchange.query = mark < 0 ? QByteArray() : target.mid(mark + 1);
    for (const QByteArray& line : lines.mid(1)) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0)
            exchange.headers.append({line.left(colon).toLower(), line.mid(colon + 1).trimmed()});
    }
    return exchange;
}

std::unique_ptr<QTcpServer> tlsServer(const QSslConfiguration& tls) {
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(tls);
    return server;
}

} // namespace

QByteArray Exchange::header(const QByteArray& name) const {
    for (const auto& [key, value] : headers)
        if (key == name)
            return value;
    return {};
}

QString Exchange::field(const QString& name) const {
    for (QByteArray item : query.split('&')) {
        item.replace('+', ' '); // form encoding
        const qsizetype equals = item.indexOf('=');
        if (QUrl::fromPercentEncoding(item.left(equals)) == name)
            return QUrl::fromPercentEncoding(item.mid(equals + 1));
    }
    return {};
}

void Exchange::respond(int status, const QByteArray& body, const QByteArray& contentType) const {
    send("HTTP/1.1 " + QByteArray::number(status) + " Status\r\nContent-Type: " + contentType +
         "\r\nContent-Length: " + QByteArray::number(body.size()) +
         "\r\nConnection: close\r\n\r\n" + body);
    if (connection)
        connection->disconnectFromHost();
}

void Exchange::send(const QByteArray& bytes) const {
    if (connection)
        connection->write(bytes);
}

void Exchange::drop() const {
    if (connection)
        connection->abort();
}

LoopbackServer::LoopbackServer(Handler handler_)
    : LoopbackServer(std::move(handler_), "http", std::make_unique<QTcpServer>()) {}

LoopbackServer::LoopbackServer(Handler handler_, const QSslConfiguration& tls)
    : LoopbackServer(std::move(handler_), "https", tlsServer(tls)) {}

LoopbackServer::LoopbackServer(Handler handler_, const char* scheme,
                               std::unique_ptr<QTcpServer> server)
    : handler(std::move(handler_)), scheme_(QLatin1String(scheme)), server_(std::move(server)) {
    connect(server_.get(), &QTcpServer::pendingConnectionAvailable, this, [this] {
        while (auto* connection = server_->nextPendingConnection())
            accept(connection);
    });
    server_->listen(QHostAddress::LocalHost);
}

QString LoopbackServer::origin() const {
    if (!server_->isListening())
        return {};
    return QStringLiteral("%1://127.0.0.1:%2").arg(scheme_).arg(server_->serverPort());
}

void LoopbackServer::accept(QTcpSocket* connection) {
    connect(connection, &QTcpSocket::disconnected, connection, &QObject::deleteLater);
    const auto head = std::make_shared<QByteArray>();
    connect(connection, &QTcpSocket::readyRead, this, [this, connection, head] {
        *head += connection->readAll();
        const qsizetype end = head->indexOf("\r\n\r\n");
        if (end < 0)
            return;
        const Exchange exchange = parse(head->left(end), connection);
        head->remove(0, end + 4);
        handler(exchange);
    });
}

} // namespace brellowind::demo
