// SPDX-License-Identifier: MIT

#include "Fuzz.h"
#include "settings/VersionOrder.h"

#include <algorithm>
#include <array>
#include <string>

// Three versions, one per line. Tests the properties of a strict total order.

namespace brellowind::fuzz {
namespace {

using Versions = std::array<std::string_view, 3>;

Versions versionsIn(std::string_view text) {
    Versions versions;
    for (auto& version : versions) {
        const auto end = std::min(text.find('\n'), text.size());
        version = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return versions;
}

/// `version` with all digit runs padded with zeros to `width`, which makes versions comparable by
/// bytes.
std::string filled(std::string_view version, std::size_t width) {
    std::string text;
    std::string digits;
    const auto endRun = [&] {
        if (!digits.empty())
            text.append(width - digits.size(), '0').append(digits);
        digits.clear();
    };
    for (const char character : version) {
        if (character >= '0' && character <= '9') {
            digits += character;
            continue;
        }
        endRun();
        text += character;
    }
    endRun();
    return text;
}

void requireOrderOf(std::string_view a, std::string_view b) {
    require(isNewer(a, b) + isNewer(b, a) == (a == b ? 0 : 1),
            "of two different versions exactly one is newer");
    const auto width = std::max(a.size(), b.size());
    const int order = filled(a, width).compare(filled(b, width));
    require(order == 0 || isNewer(a, b) == (order > 0), "numbers count by their value");
}

void requireAfterItsBeginning(std::string_view beginning, std::string_view more) {
    require(more.empty() || isNewer(std::string(beginning).append(more), beginning),
            "a version is newer than its own beginning");
}

} // namespace
} // namespace brellowind::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brellowind;
    const auto [a, b, c] = fuzz::versionsIn(fuzz::text(data, size));
    fuzz::require(!isNewer(a, a), "no version is newer than itself");
    fuzz::requireOrderOf(a, b);
    fuzz::requireOrderOf(b, c);
    fuzz::requireOrderOf(a, c);
    fuzz::require(!isNewer(a, b) || !isNewer(b, c) || isNewer(a, c), "the order is transitive");
    fuzz::requireAfterItsBeginning(a, b);
    return 0;
}
