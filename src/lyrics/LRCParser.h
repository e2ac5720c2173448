// SPDX-License-Identifier: MIT

#pragma once

#include "lyrics/LyricLine.h"

#include <string>
#include <vector>

namespace brellowind::LRCParser {

/// Parses LRC text: one `LyricLine` per time tag, stably sorted by time. Skips what is malformed.
/// `text` is UTF-8 and is shared by the lines. Linear in the text's length, except for sorting.
std::vector<LyricLine> parse(std::string text);

} // namespace brellowind::LRCParser
