// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HttpClient.h"

#include <QNetworkAccessManager>

namespace brellowind::platform {

/// HTTP through one `QNetworkAccessManager`.
class QtHttpClient final : public HttpClient {
public:
    using HttpClient::HttpClient;

    std::unique_ptr<Transfer> send(const HttpRequest& request, Completion completion) override;

private:
    QNetworkAccessManager manager_;
};

} // namespace brellowind::platform
