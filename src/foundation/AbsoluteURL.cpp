// SPDX-License-Identifier: MIT

#include "foundation/AbsoluteURL.h"

namespace brellowind {
namespace {

constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::string_view schemeCharacters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+-.";
constexpr std::string_view addressCharacters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789%-._~:/?#[]@!$&'()*+,;=";
constexpr std::string_view escapeDigits = "0123456789ABCDEFabcdef";

bool consistsOf(std::string_view text, std::string_view characters) {
    return text.find_first_not_of(characters) == std::string_view::npos;
}

/// Whether `text` consists of percent escapes, unreserved and reserved characters only.
bool isAddress(std::string_view text) {
    for (auto at = text.find('%'); at != text.npos; at = text.find('%', at + 1)) {
        const auto digits = text.substr(at + 1, 2);
        if (digits.size() < 2 || !consistsOf(digits, escapeDigits))
            return false;
    }
    return consistsOf(text, addressCharacters);
}

} // namespace

bool isAbsoluteURL(std::string_view text) {
    const auto colon = text.find(':');
    if (colon == text.npos || colon == 0 || colon + 1 == text.size())
        return false;
    return consistsOf(text.substr(0, 1), letters) &&
           consistsOf(text.substr(0, colon), schemeCharacters) && isAddress(text.substr(colon + 1));
}

} // namespace brellowind
