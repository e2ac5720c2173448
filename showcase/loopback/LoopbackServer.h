// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QPointer>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>
#include <functional>
#include <memory>

class QSslConfiguration;

namespace brellowind::demo {

/// A request and its connection.
struct Exchange {
    QByteArray path; ///< still percent-encoded, without the query
    QByteArray query;
    QList<std::pair<QByteArray, QByteArray>> headers; ///< names in lower case
    QPointer<QTcpSocket> connection;                  ///< null after the client has disconnected

    QByteArray header(const QByteArray& name) const;

    /// The decoded value of a field of the query; null if missing.
    QString field(const QString& name) const;

    /// Sends a complete response and closes the connection.
    void respond(int status, const QByteArray& body,
                 const QByteArray& contentType = "application/json") const;

    /// Sends raw bytes. The caller closes the connection.
    void send(const QByteArray& bytes) const;

    /// Closes the connection without an answer.
    void drop() const;
};

/// Serves GET requests on an ephemeral port of the loopback interface.
class LoopbackServer : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void(const Exchange&)>;

    explicit LoopbackServer(Handler handler);

    /// Serves over TLS, with the certificate and key in `tls`.
    LoopbackServer(Handler handler, const QSslConfiguration& tls);

    /// Such as "http://127.0.0.1:4711"; empty if it could not listen.
    QString origin() const;

    Handler handler;

private:
    LoopbackServer(Handler handler, const char* scheme, std::unique_ptr<QTcpServer> server);

    void accept(QTcpSocket* connection);

    QString scheme_;
    std::unique_ptr<QTcpServer> server_;
};

} // namespace brellowind::demo
