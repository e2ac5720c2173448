#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>

namespace brellowind {

/// An immutable UTF-8 text whose copies share its bytes, as may other texts cut from one buffer.
///
/// A chorus that a thousand time tags repeat is held once, so what is kept of a lyrics file grows
/// with the file and not with what it repeats.
class SharedText {
public:
    using Buffer = std::shared_ptr<const char[]>;

    SharedText() = default;

    /// Copies `text` into a buffer of its own.
    explicit SharedText(std::string_view text);

    /// Shares `buffer`; `slice` must lie inside it.
    SharedText(Buffer buffer, std::string_view slice) : buffer_(std::move(buffer)), slice_(slice) {}

    /// A buffer that holds the bytes of `text`, for several texts to share.
    static Buffer copyBytes(std::string_view text);

    /// Valid for as long as this text or a copy of it lives.
    std::string_view view() const { return slice_; }
    bool empty() const { return slice_.empty(); }
    std::size_t size() const { return slice_.size(); }

    operator std::string_view() const { return slice_; } // NOLINT(google-explicit-constructor)
    operator std::string() const {
        return std::string(slice_);
    } // NOLINT(google-explicit-constructor)

    friend bool operator==(const SharedText& a, const SharedText& b) {
        return a.slice_ == b.slice_;
    }
    friend bool operator==(const SharedText& a, std::string_view b) { return a.slice_ == b; }
    friend std::ostream& operator<<(std::ostream& out, const SharedText& text) {
        return out << text.slice_;
    }

private:
    Buffer buffer_;
    std::string_view slice_;
};

} // namespace brellowind
