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

/// What caches may do with a request.
enum class CachePolicy {
    protocol, ///< what HTTP lets them do
    reload,   ///< nothing: the answer comes from the origin, whatever is kept on the way
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

/// No answer arrived: no connection, time-out, cancellation, a redirect that is unsafe or leads
/// nowhere, a body too long, cut off or compressed.
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

    /// `mainLoop` must outlive it.
    explicit HttpClient(MainLoop& mainLoop) : mainLoop_(mainLoop) {}
    HttpClient(const HttpClient&) = delete;
    HttpClient& operator=(const HttpClient&) = delete;
    virtual ~HttpClient() = default;

    /// Sends `request`. Cancelling the task aborts the transfer and gives a transport error.
    Task<HttpResult> fetch(HttpRequest request);

    /// Calls `completion` once, later, on the main thread, unless the transfer is destroyed first;
    /// `completion` may destroy the transfer.
    virtual std::unique_ptr<Transfer> send(const HttpRequest& request, Completion completion) = 0;

private:
    MainLoop& mainLoop_;
};

} // namespace brellowind::platform
