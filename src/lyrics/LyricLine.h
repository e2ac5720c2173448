// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SharedText.h"
#include "foundation/UUID.h"

#include <memory>
#include <string>
#include <string_view>

namespace brellowind {

/// One line of synchronised lyrics. Immutable.
///
/// Equality includes `id`: a line equals only itself and its copies.
struct LyricLine {
    LyricLine(double time_, std::string_view text_)
        : id(UUIDGenerator().next()), time(time_), text(text_) {}

    /// A line of the text `whole`. `words` must lie inside it; `freshID` must be unique.
    LyricLine(UUID freshID, double time_, const std::shared_ptr<const std::string>& whole,
              std::string_view words)
        : id(freshID), time(time_), text(whole, words) {}

    bool operator==(const LyricLine&) const = default;

    const UUID id;         ///< unique for every line that is made
    const double time;     ///< seconds from the start of the track
    const SharedText text; ///< may be empty
};

} // namespace brellowind
