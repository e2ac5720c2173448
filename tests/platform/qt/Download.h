// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HttpClient.h"
#include "session/EventLoop.h"

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace brellowind::test {

/// A transfer and its result.
class Download {
public:
    static constexpr std::size_t limit = 4U << 20U;

    static platform::HttpRequest request(const QString& url) {
        return {.url = url.toStdString(), .headers = {}, .maximumBodyBytes = limit};
    }

    Download(platform::HttpClient& client, const platform::HttpRequest& request)
        : transfer_(client.send(request, [this](platform::HttpResult result) {
              ++completions_;
              result_ = std::move(result);
          })) {}
    Download(platform::HttpClient& client, const QString& url) : Download(client, request(url)) {}
    Download(const Download&) = delete;
    Download& operator=(const Download&) = delete;

    /// Waits for the end. Returns the response, if any.
    std::optional<platform::HttpResponse> response() {
        if (!ends() || !std::holds_alternative<platform::HttpResponse>(*result_))
            return std::nullopt;
        return std::get<platform::HttpResponse>(*result_);
    }

    /// Waits for the end. Returns whether it is a transport error with a description.
    bool fails() {
        return ends() && std::holds_alternative<platform::TransportError>(*result_) &&
               !std::get<platform::TransportError>(*result_).description.empty();
    }

    int completions() const { return completions_; }

    /// Destroys the transfer.
    void abandon() { transfer_.reset(); }

private:
    bool ends() {
        return waitUntil([this] { return result_.has_value(); });
    }

    int completions_ = 0;
    std::optional<platform::HttpResult> result_;
    std::unique_ptr<platform::Transfer> transfer_;
};

/// A complete response with `headers`, each ended by CR LF.
inline QByteArray httpResponse(const QByteArray& headers, const QByteArray& body = {}) {
    return "HTTP/1.1 200 OK\r\n" + headers + "\r\n" + body;
}

} // namespace brellowind::test
