#include "platform/qt/QtHttpClient.h"

#include <QBasicTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QTimerEvent>
#include <QUrl>
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

namespace brellowind::platform {
namespace {

/// How much of a body Qt buffers ahead of us; the rest waits in the network.
constexpr qint64 readAhead = 256 << 10;

// The answers that have no body, whatever length they name.
constexpr int noContent = 204;
constexpr int notModified = 304;

/// Of the ways to say that what was asked for is elsewhere, those that may be followed unasked.
constexpr std::array redirectStatuses{301, 302, 303, 305, 307, 308};
constexpr int mostRedirects = 20;

/// Whether the server answered, whatever its status: of Qt's errors only those that
/// name a status of 400 or more do not mean that the transfer itself failed.
bool isAnswer(int status, QNetworkReply::NetworkError error) {
    if (error == QNetworkReply::NoError)
        return status > 0;
    const bool namesStatus = error >= QNetworkReply::ContentAccessDenied ||
                             error == QNetworkReply::ProxyAuthenticationRequiredError;
    return status >= 400 && namesStatus;
}

bool isWeb(const QUrl& url) {
    return url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
}

/// Whether what was asked for under an encrypted address would be sent in the clear.
bool isLessSafe(const QUrl& to, const QUrl& from) {
    return from.scheme() == QLatin1String("https") && to.scheme() != QLatin1String("https");
}

/// Whether a body with this Content-Encoding is as its origin wrote it.
bool isPlain(const QByteArray& contentEncoding) {
    const QByteArray encoding = contentEncoding.trimmed().toLower();
    return encoding.isEmpty() || encoding == "identity";
}

class QtTransfer final : public QObject, public Transfer {
public:
    QtTransfer(QNetworkReply* reply, const HttpRequest& request, HttpClient::Completion completion)
        : completion_(std::move(completion)), maximumBodyBytes_(request.maximumBodyBytes) {
        listenTo(reply);
        timeout_.start(static_cast<int>(request.timeout.count()), this);
    }

    ~QtTransfer() override { releaseReply(); }

protected:
    void timerEvent(QTimerEvent* /*event*/) override {
        complete(TransportError{"the transfer timed out"});
    }

private:
    void listenTo(QNetworkReply* reply) {
        reply_ = reply;
        connect(reply, &QNetworkReply::readyRead, this, &QtTransfer::read);
        connect(reply, &QNetworkReply::finished, this, &QtTransfer::finish);
        reply->setReadBufferSize(readAhead);
    }

    int status() const {
        return reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    }

    bool isRedirect() const { return std::ranges::count(redirectStatuses, status()) > 0; }

    void read() {
        if (isRedirect())
            follow();
        else if (auto error = readBody())
            complete(std::move(*error));
    }

    void finish() {
        if (isRedirect() && reply_->error() == QNetworkReply::NoError)
            follow();
        else if (auto error = readBody())
            complete(std::move(*error));
        else if (!isAnswer(status(), reply_->error()))
            complete(TransportError{reply_->errorString().toStdString()});
        else if (!isWhole())
            complete(TransportError{"the body was cut off"});
        else
            complete(HttpResponse{status(), std::move(body_)});
    }

    /// Asks where the answer leads, whatever its body says. Every step has a reply of its own: Qt,
    /// following by itself, sometimes mixes the headers of one answer into those of the next.
    void follow() {
        const QByteArray location = reply_->rawHeader("Location");
        const QUrl from = reply_->url();
        const QUrl to = from.resolved(QUrl::fromEncoded(location));
        auto* manager = reply_->manager();
        if (location.isEmpty() || !isWeb(to) || isLessSafe(to, from) || !manager)
            return complete(TransportError{"a redirect leads nowhere"});
        if (++redirects_ > mostRedirects)
            return complete(TransportError{"too many redirects"});
        auto request = reply_->request();
        request.setUrl(to);
        releaseReply();
        listenTo(manager->get(request));
    }

    /// Qt may report a body as whole that was cut off, when the connection closes in the moment in
    /// which a part of it is taken. Of a chunked body nothing else tells.
    bool isWhole() const {
        const bool hasBody = status() != noContent && status() != notModified;
        const auto length = reply_->header(QNetworkRequest::ContentLengthHeader);
        return !hasBody || !length.isValid() || body_.size() >= length.toULongLong();
    }

    /// Takes what has arrived. Returns an error if the body is of no use.
    std::optional<TransportError> readBody() {
        std::array<char, 16384> piece;
        for (;;) {
            const qint64 count = reply_->read(piece.data(), piece.size());
            if (count <= 0)
                return std::nullopt;
            if (!isPlain(reply_->rawHeader("Content-Encoding")))
                return TransportError{"the body is compressed, which was not asked for"};
            if (static_cast<std::size_t>(count) > maximumBodyBytes_ - body_.size())
                return TransportError{"the body is too long"};
            body_.append(piece.data(), static_cast<std::size_t>(count));
        }
    }

    /// The completion may destroy this transfer.
    void complete(HttpResult result) {
        timeout_.stop();
        releaseReply();
        const auto completion = std::exchange(completion_, nullptr);
        completion(std::move(result));
    }

    void releaseReply() {
        if (!reply_)
            return;
        const auto reply = std::exchange(reply_, nullptr);
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }

    QPointer<QNetworkReply> reply_; ///< null once the transfer or the whole client has ended
    QBasicTimer timeout_;
    int redirects_ = 0;
    HttpClient::Completion completion_;
    std::size_t maximumBodyBytes_;
    std::string body_; ///< what has arrived of the answer that leads no further
};

/// An address of another kind becomes one that cannot be fetched: Qt would also read files.
QUrl webAddress(const std::string& text) {
    const auto url = QUrl::fromEncoded(QByteArray::fromStdString(text));
    return isWeb(url) ? url : QUrl();
}

QNetworkRequest networkRequest(const HttpRequest& request) {
    QNetworkRequest network(webAddress(request.url));
    network.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    // HTTP/2 gains nothing for one small body at a time, and its flow control does not keep a
    // server from filling the memory: Qt buffers such a body whole.
    network.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    network.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    network.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    network.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    if (request.cachePolicy == CachePolicy::reload) {
        network.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                             QNetworkRequest::AlwaysNetwork);
        network.setRawHeader("Cache-Control", "no-cache"); // for the proxies on the way
    }
    // By default Qt asks for every compression that it knows, and unpacks some bodies in turns of
    // the main loop that are too long. With a header of our own it leaves the body as it was sent.
    network.setRawHeader("Accept-Encoding", "identity");
    for (const auto& [name, value] : request.headers)
        network.setRawHeader(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
    return network;
}

} // namespace

std::unique_ptr<Transfer> QtHttpClient::send(const HttpRequest& request, Completion completion) {
    return std::make_unique<QtTransfer>(manager_.get(networkRequest(request)), request,
                                        std::move(completion));
}

} // namespace brellowind::platform
