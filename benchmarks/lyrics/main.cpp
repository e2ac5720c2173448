#include "IcuParser.h"
#include "Searching.h"
#include "Stopwatch.h"
#include "Texts.h"
#include "foundation/SharedText.h"
#include "lyrics/LRCParser.h"

#include <cstdio>
#include <cstring>
#include <fstream>
#include <nlohmann/json.hpp>
#include <thread>

using namespace brellowind;
using namespace brellowind::benchmarks;
using nlohmann::json;

namespace {

/// The least that any parser of LRC texts must look at: every byte, for the bracket of a tag.
std::size_t countBrackets(std::string_view text) {
    std::size_t count = 0;
    const char* const end = text.data() + text.size();
    for (const char* at = text.data();
         at != end &&
         (at = static_cast<const char*>(std::memchr(at, '[', static_cast<std::size_t>(end - at))));
         ++at)
        ++count;
    return count;
}

/// What a list of lines must take from the heap and fill whoever makes it: one array of lines.
void allocateLines(std::size_t count) {
    struct Line {
        std::uint64_t words[sizeof(LyricLine) / sizeof(std::uint64_t)];
    };
    std::vector<Line> lines(count);
    keep(*lines.data());
}

json parsing(const std::string& text, double seconds) {
    const SharedBytes bytes(text);
    const auto lines = LRCParser::parse(bytes).size();
    if (parseWithIcu(text).size() != lines)
        std::abort(); // they must do the same work
    const auto times =
        race({[&] { keep(LRCParser::parse(bytes)); }, [&] { keep(parseWithIcu(text)); },
              [&] { keep(countBrackets(text)); }, [&] { allocateLines(lines); }},
             seconds);
    return {{"bytes", text.size()}, {"lines", lines},     {"parse", times[0]},
            {"icu", times[1]},      {"memchr", times[2]}, {"allocations", times[3]}};
}

/// Seconds per byte at each size from 1 KB to 16 MB.
json sizes(const texts::Family& family) {
    json sizes = json::array();
    for (std::size_t bytes = 1024; bytes <= 16 << 20; bytes *= 4) {
        const SharedBytes text(family.make(bytes));
        const auto time = race({[&] { keep(LRCParser::parse(text)); }}, 0.15)[0];
        sizes.push_back(
            {{"bytes", text.view().size()}, {"perByte", time / static_cast<double>(bytes)}});
    }
    return {{"name", family.name}, {"sizes", sizes}};
}

/// Seconds per byte of 64 KB and of 16 MB, side by side, and those of nothing but a look at every
/// byte.
json growth(const texts::Family& family) {
    const SharedBytes small(family.make(64 << 10));
    const SharedBytes large(family.make(16 << 20));
    const auto times = race(
        {[&] { keep(LRCParser::parse(small)); }, [&] { keep(LRCParser::parse(large)); },
         [&] { keep(countBrackets(small.view())); }, [&] { keep(countBrackets(large.view())); }},
        0.5);
    const auto smallBytes = static_cast<double>(small.view().size());
    const auto largeBytes = static_cast<double>(large.view().size());
    return {{"name", family.name},
            {"small", times[0] / smallBytes},
            {"large", times[1] / largeBytes},
            {"memchrSmall", times[2] / smallBytes},
            {"memchrLarge", times[3] / largeBytes}};
}

json ofFamilies(json (*measure)(const texts::Family&)) {
    json results = json::array();
    for (const auto& family : texts::families())
        results.push_back(measure(family));
    return results;
}

json everythingElse() {
    return {{"typical", parsing(texts::typical(), 1.5)},
            {"large", parsing(texts::large(1 << 20), 2.5)},
            {"search", searching()},
            {"tick", ticking()},
            {"sizes", ofFamilies(sizes)}};
}

/// For the parsers in other languages.
void writeTexts(const std::string& folder) {
    std::ofstream(folder + "/typical.lrc") << texts::typical();
    std::ofstream(folder + "/large.lrc") << texts::large(1 << 20);
}

int usage() {
    std::fputs("lyrics_benchmark: usage: lyrics_benchmark [--growth | --texts FOLDER]\n", stderr);
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    std::thread([] {
    }).join(); // the program has threads, so counting owners may cost what it does there
    const std::string_view what = argc > 1 ? argv[1] : "";
    if (argc == 1)
        std::printf("%s\n", everythingElse().dump(2).c_str());
    else if (argc == 2 && what == "--growth")
        std::printf("%s\n", ofFamilies(growth).dump(2).c_str());
    else if (argc == 3 && what == "--texts")
        writeTexts(argv[2]);
    else
        return usage();
}
