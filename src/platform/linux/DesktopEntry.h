#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

/// The parts of the freedesktop.org Desktop Entry format that an autostart entry needs.
namespace brellowind::platform::DesktopEntry {

/// The keys of the group "Desktop Entry" with their values as written; of a key that stands twice
/// the last value. Lines that are no entries are skipped.
std::map<std::string, std::string> parse(std::string_view file);

/// A text as the value of a key, and back unless the value has an unknown escape.
std::string escape(std::string_view text);
std::optional<std::string> unescape(std::string_view value);

/// The value of Exec that starts `program` without arguments.
std::string execValue(std::string_view program);

/// The path or bare name that an Exec value starts; absent when it breaks the rules.
std::optional<std::string> execProgram(std::string_view value);

/// Also understands the 1 that old entries wrote for true.
bool isTrue(std::string_view value);
bool isFalse(std::string_view value);

} // namespace brellowind::platform::DesktopEntry
