#pragma once

#include <string>

namespace brellowind::platform {

/// The display that `spelling`, as in the variable DISPLAY, leads to: its host, which is empty for
/// this one, a colon and its number. The screen is left out. Empty if it leads nowhere; null stands
/// for the variable's value.
std::string x11DisplayName(const char* spelling = nullptr);

/// Whether the X server that DISPLAY leads to lets this program in. Waits for its answer.
bool isX11DisplayThere();

} // namespace brellowind::platform
