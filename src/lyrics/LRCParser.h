#pragma once

#include "lyrics/LyricLine.h"

#include <string_view>
#include <vector>

namespace brellowind::LRCParser {

/// Reads LRC text: the lines that carry time tags, one `LyricLine` per tag, sorted by time (lines
/// of equal time keep their order). What it cannot read it skips; a text without a readable tag
/// gives an empty list. `text` is UTF-8. Linear in the text's length.
std::vector<LyricLine> parse(std::string_view text);

} // namespace brellowind::LRCParser
