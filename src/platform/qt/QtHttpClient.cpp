// SPDX-License-Identifier: MIT

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

/// Bytes of a body that Qt may buffer; TCP flow control holds back the rest.
constexpr qint64 readAhead = 256 << 10;

// Answers without a body, whatever their Content-Length.
constexpr int noContent = 204;
constexpr int notModified = 304;

/// Redirects that may be followed automatically.
constexpr std::array redirectStatuses{301, 302, 303, 305, 307, 308};
constexpr int mostRedirects = 20;

/// Whether the server answered, with any status. Qt reports statuses from 400 on as errors, too.
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

/// Whether a redirect leads from https to http.
bool isLessSafe(const QUrl& to, const QUrl& from) {
    return from.scheme() == QLatin1String("https") && to.scheme() != QLatin1String("https");
}

/// Whether a body with this Content-Encoding is uncompressed.
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
            followRedirect();
        else if (auto error = readBody())
            complete(std::move(*error));
    }

    void finish() {
        if (isRedirect() && reply_->error() == QNetworkReply::NoError)
            followRedirect();
        else if (auto error = readBody())
            complete(std::move(*error));
        else if (!isAnswer(status(), reply_->error()))
            complete(TransportError{reply_->errorString().toStdString()});
        else if (!isComplete())
            complete(TransportError{"the body was cut off"});
        else
            complete(HttpResponse{status(), std::move(body_)});
    }

    /// Follows the redirect with a new request. Qt's own redirects sometimes mix the headers of one
    /// answer into those of the next.
    void followRedirect() {
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

    /// Whether the body is complete. Qt may report a truncated body as complete if the connection
    /// closes while a part is read. For chunked bodies there is no further check.
    bool isComplete() const {
        const bool hasBody = status() != noContent && status() != notModified;
        const auto length = reply_->header(QNetworkRequest::ContentLengthHeader);
        return !hasBody || !length.isValid() || body_.size() >= length.toULongLong();
    }

    /// Reads what has arrived. Returns an error if the body is unusable.
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

    /// `this` may be destroyed by the completion.
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

    QPointer<QNetworkReply> reply_; ///< null after the end of the transfer or of the client
    QBasicTimer timeout_;
    int redirects_ = 0;
    HttpClient::Completion completion_;
    std::size_t maximumBodyBytes_;
    std::string body_; ///< received part of the final answer
};

/// Returns an invalid URL for schemes other than http and https: Qt would also read files.
QUrl webAddress(const std::string& text) {
    const auto url = QUrl::fromEncoded(QByteArray::fromStdString(text));
    return isWeb(url) ? url : QUrl();
}

QNetworkRequest networkRequest(const HttpRequest& request) {
    QNetworkRequest network(webAddress(request.url));
    network.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    // With HTTP/2 Qt buffers bodies without limit; it gains nothing for one small body at a time.
    network.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    network.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    network.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    network.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    if (request.cachePolicy == CachePolicy::reload) {
        network.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                             QNetworkRequest::AlwaysNetwork);
        network.setRawHeader("Cache-Control", "no-cache"); // for proxies
    }
    // By default Qt requests compressed bodies, and blocks the main loop for too long while it
    // decompresses some of them. Setting the header also disables its decompression.
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
