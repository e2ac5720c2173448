#pragma once

#include "foundation/SharedText.h"
#include "foundation/UUID.h"

#include <string_view>
#include <utility>

namespace brellowind {

/// One line of synchronised lyrics. Its fields are fixed when it is made.
///
/// Equality includes `id`: a line equals only itself and its copies.
struct LyricLine {
    LyricLine(double time_, std::string_view text_) : LyricLine(time_, SharedText(text_)) {}
    LyricLine(double time_, SharedText text_)
        : id(UUID::random()), time(time_), text(std::move(text_)) {}

    bool operator==(const LyricLine&) const = default;

    const UUID id;         ///< drawn anew for every line that is made
    const double time;     ///< seconds from the start of the track
    const SharedText text; ///< may be empty
};

} // namespace brellowind
