// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

/// The program's fixed texts. For URLs see `platform::ProductConstants`.
namespace brellowind::AppInfo {

inline constexpr std::string_view name = "Brellowind";
inline constexpr std::string_view description = "Lyrics that live in your notch";

/// The version for display: "Version 1.2", or "Version —" if it is empty.
inline std::string version(std::string_view shortVersion) {
    return "Version " + std::string(shortVersion.empty() ? "—" : shortVersion);
}

} // namespace brellowind::AppInfo
