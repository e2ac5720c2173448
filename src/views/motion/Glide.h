// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

namespace brellowind {

/// The scrolling of a text that is wider than its room: a pause at the beginning, a motion to the
/// end, a pause there. It is completed while the text is shown, faster than reading pace if
/// necessary.
class Glide {
public:
    /// The text is `distance` points wider than its room and is shown for `life` seconds; nullopt
    /// if unknown.
    Glide(double distance, std::optional<double> life);

    /// The scroll position in points, `elapsed` seconds after the text was shown.
    double offset(double elapsed) const;

    bool hasBegun(double elapsed) const { return elapsed > startPause_; }
    bool isOver(double elapsed) const { return elapsed >= startPause_ + duration_; }

private:
    double distance_;
    double startPause_; ///< seconds of the first pause
    double duration_;
};

} // namespace brellowind
