// SPDX-License-Identifier: MIT

#include "Texts.h"

#include <array>
#include <cstdio>

namespace brellowind::benchmarks::texts {
namespace {

constexpr std::array<std::string_view, 12> words{
    "We hung the lanterns", "over the garden",  "Paper and candle",  "waiting for rain",
    "Somebody laughing",    "Größe und Stille", "down by the water", "All of the evening",
    "went by like a train", "Hold on a little", "la la la",          "the light is the same"};

std::string song(int lines, double start, double gap) {
    std::string text;
    double time = start;
    for (int i = 0; i < lines; ++i) {
        const int hundredths = static_cast<int>(time * 100);
        std::array<char, 32> tag{};
        std::snprintf(tag.data(), tag.size(), "[%02d:%02d.%02d] ", hundredths / 6000 % 100,
                      hundredths / 100 % 60, hundredths % 100);
        text += tag.data();
        if (i % 11 != 10) // an occasional empty line
            text += words[static_cast<std::size_t>(i) % words.size()];
        text += '\n';
        time += gap;
    }
    return text;
}

std::string repeated(std::string_view unit, std::size_t bytes) {
    std::string text;
    text.reserve(bytes + unit.size());
    while (text.size() < bytes)
        text += unit;
    return text;
}

} // namespace

std::string typical() {
    return "[ar:The Windowsill Quartet]\n[ti:Paper Lanterns]\n[length:03:34]\n\n" +
           song(60, 9.1, 3.3);
}

std::string large(std::size_t bytes) {
    std::string text;
    text.reserve(bytes + 64);
    const auto lines = bytes / 31;
    const double gap = 5990.0 / static_cast<double>(lines + 1); // within 99 minutes
    return song(static_cast<int>(lines), 0, gap);
}

const std::vector<Family>& families() {
    static const std::vector<Family> all{
        {"songs", large},
        {"open brackets", [](std::size_t bytes) { return std::string(bytes, '['); }},
        {"unclosed tags", [](std::size_t bytes) { return repeated("[00:01.00", bytes); }},
        {"one giant line",
         [](std::size_t bytes) { return "[00:01.00]" + std::string(bytes, 'x'); }},
        {"tags on one line", [](std::size_t bytes) { return repeated("[00:01.00]", bytes); }},
        {"tags in falling order",
         [](std::size_t bytes) {
             std::string text;
             const auto count = bytes / 10;
             for (std::size_t i = 0; i < count; ++i) {
                 const auto left = (count - i) * 590'000 / count;
                 std::array<char, 32> tag{};
                 std::snprintf(tag.data(), tag.size(), "[%02zu:%02zu.%02zu]", left / 6000,
                               left / 100 % 60, left % 100);
                 text += tag.data();
             }
             return text;
         }},
        {"blank lines", [](std::size_t bytes) { return std::string(bytes, '\n'); }},
        {"carriage returns", [](std::size_t bytes) { return repeated("[00:01.00]a\r\n", bytes); }},
        {"spaces", [](std::size_t bytes) { return "[00:01.00]" + repeated("\u3000", bytes); }},
    };
    return all;
}

} // namespace brellowind::benchmarks::texts
