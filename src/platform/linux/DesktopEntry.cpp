// SPDX-License-Identifier: MIT

#include "platform/linux/DesktopEntry.h"

#include <algorithm>

namespace brellowind::platform::DesktopEntry {
namespace {

constexpr std::string_view whitespace = " \t\r";
constexpr std::string_view mainGroup = "[Desktop Entry]";

/// Characters that require double quotes around an argument of Exec.
constexpr std::string_view reserved = " \t\n\"'\\><~|&;$*?#()`";

/// Characters that need a backslash within double quotes.
constexpr std::string_view escapedInQuotes = "\"`$\\";

/// The escaped characters of a value, and the letters of their escapes.
constexpr std::string_view escaped = " \n\t\r\\";
constexpr std::string_view escapeCodes = "sntr\\";

bool isOneOf(char character, std::string_view characters) {
    return characters.find(character) != std::string_view::npos;
}

std::string_view trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(whitespace), text.size()));
    return text.substr(0, text.find_last_not_of(whitespace) + 1);
}

/// Removes the text up to the next `separator`, and it, from `rest`. Returns the text.
std::string_view takeUntil(std::string_view& rest, char separator) {
    const auto piece = rest.substr(0, rest.find(separator));
    rest.remove_prefix(std::min(piece.size() + 1, rest.size()));
    return piece;
}

/// The first argument of a command line, unquoted.
std::optional<std::string> firstArgument(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    if (line.empty() || line.front() != '"') {
        const auto bare = line.substr(0, line.find(' '));
        const bool legal = bare.find_first_of(reserved) == std::string_view::npos;
        return legal ? std::optional<std::string>(bare) : std::nullopt;
    }
    std::string argument;
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (line[i] == '"') {
            const bool whole = i + 1 == line.size() || line[i + 1] == ' ';
            return whole ? std::optional(argument) : std::nullopt;
        }
        if (line[i] == '\\' && i + 1 < line.size() && isOneOf(line[i + 1], escapedInQuotes))
            ++i;
        argument += line[i];
    }
    return std::nullopt;
}

/// Unescapes doubled percent signs. Returns nullopt for a field code.
std::optional<std::string> withoutFieldCodes(std::string_view argument) {
    std::string text;
    for (std::size_t i = 0; i < argument.size(); ++i) {
        if (argument[i] == '%' && argument.substr(++i, 1) != "%")
            return std::nullopt;
        text += argument[i];
    }
    return text;
}

} // namespace

std::map<std::string, std::string> parse(std::string_view file) {
    std::map<std::string, std::string> entries;
    bool inMainGroup = false;
    while (!file.empty()) {
        auto line = trimmed(takeUntil(file, '\n'));
        if (line.starts_with('['))
            inMainGroup = line == mainGroup;
        if (!inMainGroup || line.starts_with('#') || line.find('=') == std::string_view::npos)
            continue;
        const auto key = trimmed(takeUntil(line, '='));
        entries.insert_or_assign(std::string(key), std::string(trimmed(line)));
    }
    return entries;
}

std::string escape(std::string_view text) {
    std::string value;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto code = escaped.find(text[i]);
        const bool isInside = 0 < i && i + 1 < text.size();
        if (code == std::string_view::npos || (text[i] == ' ' && isInside))
            value += text[i];
        else // readers trim values
            value.append({'\\', escapeCodes[code]});
    }
    return value;
}

std::optional<std::string> unescape(std::string_view value) {
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\') {
            text += value[i];
            continue;
        }
        const auto code = ++i < value.size() ? escapeCodes.find(value[i]) : std::string_view::npos;
        if (code == std::string_view::npos)
            return std::nullopt;
        text += escaped[code];
    }
    return text;
}

std::string execValue(std::string_view program) {
    const bool quoted = program.find_first_of(reserved) != std::string_view::npos;
    std::string argument;
    for (const char character : program) {
        if (quoted && isOneOf(character, escapedInQuotes))
            argument += '\\';
        if (character == '%')
            argument += '%';
        argument += character;
    }
    return escape(quoted ? '"' + argument + '"' : argument);
}

std::optional<std::string> execProgram(std::string_view value) {
    const auto line = unescape(value);
    const auto argument = line ? firstArgument(*line) : std::nullopt;
    auto program = argument ? withoutFieldCodes(*argument) : std::nullopt;
    if (program && program->empty())
        return std::nullopt;
    return program;
}

bool isTrue(std::string_view value) {
    return value == "true" || value == "1";
}

bool isFalse(std::string_view value) {
    return value == "false" || value == "0";
}

} // namespace brellowind::platform::DesktopEntry
