#pragma once

#include <nlohmann/json_fwd.hpp>

namespace brellowind::benchmarks {

/// The search for the active line beside `std::upper_bound` on the same list, and what it
/// allocates.
nlohmann::json searching();

/// What a tick of the running song takes that does not change the line.
nlohmann::json ticking();

} // namespace brellowind::benchmarks
