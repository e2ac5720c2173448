#include "platform/qt/QtHttpClient.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimerEvent>
#include <QUrl>
#include <utility>

namespace brellowind::platform {
namespace {

/// Whether the server's answer arrived whole, whatever its status: of Qt's errors only those that
/// name a status of 400 or more do not mean that the transfer itself failed.
bool isAnswer(int status, QNetworkReply::NetworkError error) {
    if (error == QNetworkReply::NoError)
        return status > 0;
    return status >= 400 && error >= QNetworkReply::ContentAccessDenied;
}

class QtTransfer final : public QObject, public Transfer {
public:
    QtTransfer(QNetworkReply* reply, const HttpRequest& request, HttpClient::Completion completion)
        : reply_(reply), completion_(std::move(completion)),
          maximumBodyBytes_(request.maximumBodyBytes) {
        connect(reply, &QNetworkReply::readyRead, this, &QtTransfer::readBody);
        connect(reply, &QNetworkReply::finished, this, &QtTransfer::finish);
        startTimer(request.timeout);
    }

    ~QtTransfer() override { releaseReply(); }

protected:
    void timerEvent(QTimerEvent* event) override {
        killTimer(event->timerId());
        complete(TransportError{"the transfer timed out"});
    }

private:
    void readBody() {
        const QByteArray chunk = reply_->readAll();
        if (static_cast<std::size_t>(chunk.size()) > maximumBodyBytes_ - body_.size())
            complete(TransportError{"the body is too long"});
        else
            body_.append(chunk.constData(), static_cast<std::size_t>(chunk.size()));
    }

    void finish() {
        readBody();
        if (!completion_)
            return;
        const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (isAnswer(status, reply_->error()))
            complete(HttpResponse{status, std::move(body_)});
        else
            complete(TransportError{reply_->errorString().toStdString()});
    }

    /// The completion may destroy this transfer.
    void complete(HttpResult result) {
        releaseReply();
        const auto completion = std::exchange(completion_, nullptr);
        completion(std::move(result));
    }

    void releaseReply() {
        if (!reply_)
            return;
        auto* reply = std::exchange(reply_, nullptr);
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }

    QNetworkReply* reply_;
    HttpClient::Completion completion_;
    std::size_t maximumBodyBytes_;
    std::string body_;
};

QNetworkRequest networkRequest(const HttpRequest& request) {
    QNetworkRequest network(QUrl::fromEncoded(QByteArray::fromStdString(request.url)));
    network.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    network.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    network.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    network.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    if (request.cachePolicy == CachePolicy::reload) {
        network.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                             QNetworkRequest::AlwaysNetwork);
        network.setRawHeader("Cache-Control", "no-cache"); // for the proxies on the way
    }
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
