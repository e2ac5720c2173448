#include "Fuzz.h"
#include "platform/qt/GzipStream.h"

#include <algorithm>
#include <optional>
#include <string>

// Any bytes as a compressed body, whole and in pieces.

namespace brellowind::fuzz {
namespace {

using platform::GzipStream;

constexpr std::size_t limit = 64 << 10;

/// What a file becomes that comes in pieces of so many bytes; nothing when it is refused.
std::optional<std::string> unpacked(std::string_view file, std::size_t pieceSize) {
    GzipStream stream;
    std::string body;
    for (; !file.empty(); file.remove_prefix(std::min(pieceSize, file.size()))) {
        const auto result = stream.unpack(file.substr(0, pieceSize), body, limit);
        require(body.size() <= limit, "a body is no longer than its limit");
        if (result != GzipStream::Result::unpacked)
            return std::nullopt;
    }
    return stream.isWhole() ? std::optional(body) : std::nullopt;
}

} // namespace
} // namespace brellowind::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brellowind;
    const auto file = fuzz::text(data, size);
    const auto body = fuzz::unpacked(file, size + 1);
    for (const std::size_t pieceSize : {1U, 13U})
        fuzz::require(fuzz::unpacked(file, pieceSize) == body,
                      "what a file becomes does not depend on its pieces");
    return 0;
}
