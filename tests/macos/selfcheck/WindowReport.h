// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace brellowind::selfcheck {

/// What is wrong with the overlay's native window, one line each; empty when all is right. `view`
/// is the native view that fills the window, which is shown. The pointer is away from the pill.
std::vector<std::string> complaintsAbout(std::uintptr_t view);

/// The number by which the window server knows the window of `view`.
long windowNumber(std::uintptr_t view);

/// Moves the pointer, in the coordinates of the window server: the origin is at the top left corner
/// of the primary screen.
void movePointer(double x, double y);

} // namespace brellowind::selfcheck
