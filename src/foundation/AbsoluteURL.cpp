#include "foundation/AbsoluteURL.h"

#include <algorithm>

namespace brellowind {
namespace {

constexpr std::string_view escapeDigits = "0123456789ABCDEFabcdef";

bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isOneOf(char character, std::string_view characters) {
    return characters.find(character) != std::string_view::npos;
}

bool isScheme(std::string_view text) {
    return !text.empty() && isLetter(text.front()) && std::ranges::all_of(text, [](char character) {
        return isLetter(character) || isDigit(character) || isOneOf(character, "+-.");
    });
}

/// Whether percent escapes and the unreserved and reserved characters are all that `text` holds.
bool isAddress(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char character = text[i];
        if (character == '%') {
            if (text.size() - i < 3 || !isOneOf(text[i + 1], escapeDigits) ||
                !isOneOf(text[i + 2], escapeDigits))
                return false;
            i += 2;
        } else if (!isLetter(character) && !isDigit(character) &&
                   !isOneOf(character, "-._~:/?#[]@!$&'()*+,;=")) {
            return false;
        }
    }
    return true;
}

} // namespace

bool isAbsoluteURL(std::string_view text) {
    const auto colon = text.find(':');
    if (colon == std::string_view::npos || colon + 1 == text.size())
        return false;
    return isScheme(text.substr(0, colon)) && isAddress(text.substr(colon + 1));
}

} // namespace brellowind
