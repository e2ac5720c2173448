#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

namespace brellowind {

/// Immutable bytes that all copies of a handle own together.
///
/// The copies stay on one thread: counting them atomically would cost more than all else that is
/// done for a line of lyrics.
class SharedBytes {
public:
    SharedBytes() = default;

    /// Takes the bytes over; those of a long string are not copied.
    SharedBytes(std::string bytes) : block_(new Block{1, std::move(bytes)}) {}

    SharedBytes(const SharedBytes& other) : block_(other.block_) {
        if (block_)
            ++block_->owners;
    }
    SharedBytes(SharedBytes&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
    SharedBytes& operator=(SharedBytes other) noexcept {
        std::swap(block_, other.block_);
        return *this;
    }
    ~SharedBytes() {
        if (block_ && --block_->owners == 0)
            release();
    }

    /// Valid for as long as this handle or a copy of it lives; empty for a handle of nothing.
    std::string_view view() const { return block_ ? block_->bytes : std::string_view(); }

private:
    struct Block {
        std::size_t owners;
        std::string bytes;
    };

    void release();

    Block* block_ = nullptr;
};

/// An immutable UTF-8 text whose copies share its bytes, as may other texts cut from one buffer.
///
/// A chorus that a thousand time tags repeat is held once, so what is kept of a lyrics file grows
/// with the file and not with what it repeats.
class SharedText {
public:
    SharedText() = default;

    /// Copies `text` into a buffer of its own.
    explicit SharedText(std::string_view text)
        : buffer_(std::string(text)), slice_(buffer_.view()) {}

    /// Shares `buffer`; `slice` must lie inside it.
    SharedText(SharedBytes buffer, std::string_view slice)
        : buffer_(std::move(buffer)), slice_(slice) {}

    /// Valid for as long as this text or a copy of it lives.
    std::string_view view() const { return slice_; }
    bool empty() const { return slice_.empty(); }
    std::size_t size() const { return slice_.size(); }

    operator std::string_view() const { return slice_; }
    operator std::string() const { return std::string(slice_); }

    friend bool operator==(const SharedText& a, const SharedText& b) {
        return a.slice_ == b.slice_;
    }
    friend bool operator==(const SharedText& a, std::string_view b) { return a.slice_ == b; }
    friend std::ostream& operator<<(std::ostream& out, const SharedText& text) {
        return out << text.slice_;
    }

private:
    SharedBytes buffer_;
    std::string_view slice_;
};

} // namespace brellowind
