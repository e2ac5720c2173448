// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

namespace brellowind {

/// An immutable UTF-8 text: a slice of a reference-counted string.
class SharedText {
public:
    SharedText() = default;

    /// Copies `text`.
    explicit SharedText(std::string_view text)
        : whole_(std::make_shared<const std::string>(text)), slice_(*whole_) {}

    /// `slice` must lie inside `whole`.
    SharedText(std::shared_ptr<const std::string> whole, std::string_view slice)
        : whole_(std::move(whole)), slice_(slice) {}

    /// Valid as long as this object or a copy of it.
    std::string_view view() const { return slice_; }
    bool empty() const { return slice_.empty(); }
    std::size_t size() const { return slice_.size(); }

    operator std::string_view() const { return slice_; }

    friend bool operator==(const SharedText& a, const SharedText& b) {
        return a.slice_ == b.slice_;
    }
    friend bool operator==(const SharedText& a, std::string_view b) { return a.slice_ == b; }
    friend std::ostream& operator<<(std::ostream& out, const SharedText& text) {
        return out << text.slice_;
    }

private:
    std::shared_ptr<const std::string> whole_;
    std::string_view slice_;
};

} // namespace brellowind
