#include "loopback/LoopbackServer.h"

#include <QUrl>
#include <memory>
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

} // namespace

QByteArray Exchange::header(const QByteArray& name) const {
    for (const auto& [key, value] : headers)
        if (key == name)
            return value;
    return {};
}

QString Exchange::field(const QString& name) const {
    for (QByteArray item : query.split('&')) {
        item.replace('+', ' '); // as forms are decoded
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

LoopbackServer::LoopbackServer(Handler handler_) : handler(std::move(handler_)) {
    connect(&server_, &QTcpServer::newConnection, this, [this] {
        while (auto* connection = server_.nextPendingConnection())
            accept(connection);
    });
    server_.listen(QHostAddress::LocalHost);
}

QString LoopbackServer::origin() const {
    if (!server_.isListening())
        return {};
    return QStringLiteral("http://127.0.0.1:%1").arg(server_.serverPort());
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
