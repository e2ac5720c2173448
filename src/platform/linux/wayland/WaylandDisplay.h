#pragma once

#include <string>

namespace brellowind::platform {

/// Whether the compositor that the environment names offers a layer shell. Asks it over a
/// connection of its own and waits for the answer. False when there is no compositor.
bool offersLayerShell();

/// The path of the socket that the environment names, links resolved. Empty without one.
std::string waylandSocketPath();

} // namespace brellowind::platform
