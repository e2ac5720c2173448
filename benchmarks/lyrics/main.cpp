// SPDX-License-Identifier: MIT

#include "IcuParser.h"
#include "Stopwatch.h"
#include "Texts.h"
#include "lyrics/LRCParser.h"

#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <nlohmann/json.hpp>
#include <thread>

using namespace brellowind;
using namespace brellowind::benchmarks;
using nlohmann::json;

namespace {

/// Prints the seconds for `text`, compared with ICU.
json parsing(const std::string& text) {
    const auto lines = LRCParser::parse(text).size();
    if (parseWithIcu(text).size() != lines)
        std::abort(); // the results must be equal
    const auto times =
        race({[&] { keep(LRCParser::parse(text)); }, [&] { keep(parseWithIcu(text)); }}, 1.5);
    return {{"bytes", text.size()}, {"lines", lines}, {"parse", times[0]}, {"icu", times[1]}};
}

/// Seconds per byte of a short text and of one as long as an answer may be.
json growth(const texts::Family& family) {
    const auto small = family.make(16 << 10);
    const auto large = family.make(1 << 20);
    const auto times =
        race({[&] { keep(LRCParser::parse(small)); }, [&] { keep(LRCParser::parse(large)); }}, 0.5);
    return {{"name", family.name},
            {"small", times[0] / static_cast<double>(small.size())},
            {"large", times[1] / static_cast<double>(large.size())}};
}

} // namespace

int main() {
    std::thread([] {}).join(); // makes reference counts atomic, as in the real program
    // Reuse large blocks, so that page faults are not measured.
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 256 << 20);
    json families = json::array();
    for (const auto& family : texts::families())
        families.push_back(growth(family));
    const json results{{"typical", parsing(texts::typical())},
                       {"large", parsing(texts::large(1 << 20))},
                       {"growth", families}};
    std::printf("%s\n", results.dump(2).c_str());
}
