// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brellowind::benchmarks {

struct IcuLine {
    double time;
    std::string text;
};

/// Reference implementation of `LRCParser::parse` with a regular expression for time tags, compiled
/// by ICU on every call.
std::vector<IcuLine> parseWithIcu(std::string_view text);

} // namespace brellowind::benchmarks
