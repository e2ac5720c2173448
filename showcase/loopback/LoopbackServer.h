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

/// One request that the server has read, and the connection to answer it on.
struct Exchange {
    QByteArray path; ///< still percent-encoded, without the query
    QByteArray query;
    QList<std::pair<QByteArray, QByteArray>> headers; ///< names in lower case
    QPointer<QTcpSocket> connection;                  ///< null once the client has gone

    QByteArray header(const QByteArray& name) const;

    /// The value of a form field of the query, decoded; null when there is none.
    QString field(const QString& name) const;

    /// Answers with a whole response and closes the connection.
    void respond(int status, const QByteArray& body,
                 const QByteArray& contentType = "application/json") const;

    /// Sends bytes as they are; the caller closes the connection.
    void send(const QByteArray& bytes) const;

    /// Drops the connection without an answer.
    void drop() const;
};

/// Serves GET requests on a port of loopback that the system picks.
class LoopbackServer : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void(const Exchange&)>;

    explicit LoopbackServer(Handler handler);

    /// Serves over TLS, with the certificate and key in `tls`.
    LoopbackServer(Handler handler, const QSslConfiguration& tls);

    /// Such as "http://127.0.0.1:4711"; empty when no port could be had.
    QString origin() const;

    Handler handler;

private:
    LoopbackServer(Handler handler, const char* scheme, std::unique_ptr<QTcpServer> server);

    void accept(QTcpSocket* connection);

    QString scheme_;
    std::unique_ptr<QTcpServer> server_;
};

} // namespace brellowind::demo
