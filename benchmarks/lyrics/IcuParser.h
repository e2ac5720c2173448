#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brellowind::benchmarks {

struct IcuLine {
    double time;
    std::string text;
};

/// The same lines as `LRCParser::parse` finds, found as one would write it first: the pattern of a
/// time tag, compiled by the regular-expression engine of ICU on every call.
std::vector<IcuLine> parseWithIcu(std::string_view text);

} // namespace brellowind::benchmarks
