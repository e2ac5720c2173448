#include "lyrics/LyricLine.h"

#include <utility>

namespace brellowind {

LyricLine::LyricLine(double time_, std::string_view text_) : LyricLine(time_, SharedText(text_)) {}

LyricLine::LyricLine(double time_, SharedText text_)
    : id(UUID::random()), time(time_), text(std::move(text_)) {}

} // namespace brellowind
