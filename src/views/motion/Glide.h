#pragma once

#include <optional>

namespace brellowind {

/// How a text that is wider than its room moves through it: it stands at its beginning, moves to
/// its end and rests there. All of it takes place while the text is shown, and where there is too
/// little time for the pace of reading it moves faster.
class Glide {
public:
    /// The text is `distance` points wider than its room, and is shown for `life` seconds; none:
    /// nobody knows how long.
    Glide(double distance, std::optional<double> life);

    /// How far the text has moved, in points, `elapsed` seconds after it was shown.
    double offset(double elapsed) const;

    bool hasBegun(double elapsed) const { return elapsed > stand_; }
    bool isOver(double elapsed) const { return elapsed >= stand_ + duration_; }

private:
    double distance_;
    double stand_; ///< seconds until it moves
    double duration_;
};

} // namespace brellowind
