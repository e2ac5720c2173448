#pragma once

#include "lyrics/LyricLine.h"

#include <string>
#include <vector>

namespace brellowind::LRCParser {

/// Reads LRC text: the lines that carry time tags, one `LyricLine` per tag, sorted by time (lines
/// of equal time keep their order). What it cannot read it skips; a text without a readable tag
/// gives an empty list. `text` is UTF-8; the lines share it, so no words are copied. Linear in the
/// text's length, but for sorting.
std::vector<LyricLine> parse(std::string text);

} // namespace brellowind::LRCParser
