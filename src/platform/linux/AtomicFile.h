#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace brellowind::platform {

/// Puts a file with `contents` at `path`, in the place of one that is there. Whoever looks finds
/// the old file or the whole new one, also after a crash; on failure the old one is untouched and
/// nothing else is left behind. Folders that are missing are made, for the user alone.
std::error_code replaceFile(const std::filesystem::path& path, std::string_view contents);

} // namespace brellowind::platform
