// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace brellowind::platform {

/// Whether the compositor of the environment supports a layer shell. Blocks: queries it over a
/// separate connection. False if there is no compositor.
bool offersLayerShell();

/// The path of the environment's socket, with symbolic links resolved. Empty if there is none.
std::string waylandSocketPath();

} // namespace brellowind::platform
