#include "platform/qt/HttpBody.h"

#include <algorithm>

namespace brellowind::platform {
namespace {

const TransportError tooLong{"the body is too long"};

/// Whether both are the same but for capitals; `lower` has none.
bool names(std::string_view text, std::string_view lower) {
    return std::ranges::equal(text, lower, {}, [](char character) {
        const bool isCapital = character >= 'A' && character <= 'Z';
        return isCapital ? static_cast<char>(character - 'A' + 'a') : character;
    });
}

} // namespace

HttpBody::HttpBody(std::string_view contentEncoding, std::size_t limit) : limit_(limit) {
    if (names(contentEncoding, "gzip") || names(contentEncoding, "x-gzip"))
        gzip_.emplace();
    else
        isReadable_ = contentEncoding.empty() || names(contentEncoding, "identity");
}

std::optional<TransportError> HttpBody::take(std::string_view piece) {
    if (!isReadable_)
        return TransportError{"the body is compressed in a way that was not asked for"};
    if (piece.size() > limit_ - received_)
        return tooLong;
    received_ += piece.size();
    if (gzip_)
        return unpack(piece);
    text_.append(piece);
    return std::nullopt;
}

std::optional<TransportError> HttpBody::unpack(std::string_view piece) {
    switch (gzip_->unpack(piece, text_, limit_)) {
    case GzipStream::Result::unpacked:
        return std::nullopt;
    case GzipStream::Result::tooLong:
        return tooLong;
    case GzipStream::Result::broken:
        break;
    }
    return TransportError{"the body is not compressed as it says"};
}

} // namespace brellowind::platform
