// SPDX-License-Identifier: MIT

#include "settings/VersionOrder.h"

#include <algorithm>
#include <compare>

namespace brellowind {
namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool startsWithDigit(std::string_view text) {
    return !text.empty() && isDigit(text.front());
}

/// Removes the leading digits from `text`. Returns them without leading zeros.
std::string_view takeNumber(std::string_view& text) {
    const auto end = std::ranges::find_if_not(text, isDigit);
    auto digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

/// Compares by value: without leading zeros the longer number is greater.
std::strong_ordering compareNumbers(std::string_view a, std::string_view b) {
    const auto lengths = a.size() <=> b.size();
    return lengths != 0 ? lengths : a <=> b;
}

/// UTF-8 bytes, compared unsigned as by `string_view`, order like code points.
std::strong_ordering compareVersions(std::string_view a, std::string_view b) {
    std::string_view restOfA = a;
    std::string_view restOfB = b;
    while (!restOfA.empty() && !restOfB.empty()) {
        auto order = std::strong_ordering::equal;
        if (startsWithDigit(restOfA) && startsWithDigit(restOfB)) {
            const auto numberOfA = takeNumber(restOfA);
            order = compareNumbers(numberOfA, takeNumber(restOfB));
        } else {
            order = restOfA.substr(0, 1) <=> restOfB.substr(0, 1);
            restOfA.remove_prefix(1);
            restOfB.remove_prefix(1);
        }
        if (order != 0)
            return order;
    }
    if (const auto lengths = restOfA.size() <=> restOfB.size(); lengths != 0)
        return lengths; // one of them is empty
    const auto lengths = a.size() <=> b.size();
    return lengths != 0 ? lengths : a <=> b;
}

} // namespace

bool isNewer(std::string_view candidate, std::string_view than) {
    return compareVersions(candidate, than) > 0;
}

} // namespace brellowind
