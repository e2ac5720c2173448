#pragma once

#include <chrono>
#include <functional>

namespace brellowind::test {

/// Runs the Qt event loop until `condition` holds. False when that takes longer than any machine
/// should need.
bool waitUntil(const std::function<bool()>& condition,
               std::chrono::milliseconds patience = std::chrono::seconds(20));

/// Runs the Qt event loop for `duration`: for what must not happen in the meantime.
void runFor(std::chrono::milliseconds duration);

} // namespace brellowind::test
