#pragma once

#include <string_view>

namespace brellowind {

/// Stops the program because of a programming error, after writing `message` to standard error.
[[noreturn]] void fatalError(std::string_view message);

} // namespace brellowind
