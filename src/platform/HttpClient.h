// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Task.h"
#include "platform/MainLoop.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace brellowind::platform {

enum class CachePolicy {
    protocol, ///< caches are used as HTTP allows
    reload,   ///< caches are bypassed; the answer comes from the origin
};

/// A GET request.
struct HttpRequest {
    std::string url; ///< absolute and percent-encoded
    std::vector<std::pair<std::string, std::string>> headers;
    std::size_t maximumBodyBytes; ///< a longer body is a transport failure
    std::chrono::milliseconds timeout = std::chrono::seconds(60); ///< for the whole transfer
    CachePolicy cachePolicy = CachePolicy::protocol;
};

struct HttpResponse {
    int status;
    std::string body;
};

/// No usable answer: no connection, timeout, cancellation, an unsafe or invalid redirect, a body
/// that is too long, truncated or compressed.
struct TransportError {
    std::string description;
};

using HttpResult = std::variant<HttpResponse, TransportError>;

/// A running transfer. Destroying it aborts it and closes its connection.
class Transfer {
public:
    virtual ~Transfer() = default;
};

/// The process-wide HTTP client. It follows redirects, but never from https to http, verifies TLS
/// certificates, and keeps no cookies.
class HttpClient {
public:
    using Completion = std::function<void(HttpResult)>;

    /// `mainLoop` must outlive this object.
    explicit HttpClient(MainLoop& mainLoop) : mainLoop_(mainLoop) {}
    HttpClient(const HttpClient&) = delete;
    HttpClient& operator=(const HttpClient&) = delete;
    virtual ~HttpClient() = default;

    /// Sends `request`. Cancelling the task aborts the transfer and returns a transport error.
    Task<HttpResult> fetch(HttpRequest request);

    /// Calls `completion` once on the main thread, never from within this call, and not after the
    /// transfer is destroyed. `completion` may destroy the transfer.
    virtual std::unique_ptr<Transfer> send(const HttpRequest& request, Completion completion) = 0;

private:
    MainLoop& mainLoop_;
};

} // namespace brellowind::platform
