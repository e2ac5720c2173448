#pragma once

#include "lyrics/LyricLine.h"

#include <string>
#include <vector>

namespace brellowind::LRCParser {

/// Reads LRC text: one `LyricLine` for each time tag, sorted by time; lines of equal time keep
/// their order. What it cannot read it skips. `text` is UTF-8; the lines share it, so no words are
/// copied. Linear in the text's length, but for sorting.
std::vector<LyricLine> parse(std::string text);

} // namespace brellowind::LRCParser
