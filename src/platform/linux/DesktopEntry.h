// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

/// Reading and writing of freedesktop.org desktop entries, as far as autostart entries need it.
namespace brellowind::platform::DesktopEntry {

/// The keys of the group "Desktop Entry" with their raw values. The last of repeated keys counts;
/// invalid lines are skipped.
std::map<std::string, std::string> parse(std::string_view file);

/// Converts a text to the value of a key, and back. `unescape` returns nullopt for an unknown
/// escape.
std::string escape(std::string_view text);
std::optional<std::string> unescape(std::string_view value);

/// The value of Exec that starts `program` without arguments.
std::string execValue(std::string_view program);

/// The path or name of the program in an Exec value. Returns nullopt if the value is invalid.
std::optional<std::string> execProgram(std::string_view value);

/// Accepts "true", and "1" of old entries.
bool isTrue(std::string_view value);
bool isFalse(std::string_view value);

} // namespace brellowind::platform::DesktopEntry
