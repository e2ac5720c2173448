#pragma once

#include "platform/HttpClient.h"
#include "platform/qt/GzipStream.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace brellowind::platform {

/// The body of an answer as it arrives: unpacked and counted. Gzip is the only compression that is
/// taken.
class HttpBody {
public:
    /// `contentEncoding` is what the answer says it is compressed by; nobody wants more than
    /// `limit` bytes, packed or not.
    HttpBody(std::string_view contentEncoding, std::size_t limit);

    /// Takes what comes next. What is wrong with it, if anything is; then the body is of no use.
    std::optional<TransportError> take(std::string_view piece);

    /// How many bytes have come, as they were sent.
    std::size_t received() const { return received_; }

    /// Whether it may end here, as far as the compression tells.
    bool isWhole() const { return !gzip_ || gzip_->isWhole(); }

    /// What has come, unpacked. The body is of no use any more.
    std::string taken() { return std::move(text_); }

private:
    std::optional<TransportError> unpack(std::string_view piece);

    std::size_t limit_;
    std::size_t received_ = 0;
    bool isReadable_ = true; ///< whether the compression is one that was asked for
    std::optional<GzipStream> gzip_;
    std::string text_;
};

} // namespace brellowind::platform
