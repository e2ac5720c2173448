// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <functional>

namespace brellowind::test {

/// Runs the Qt event loop until `condition` holds. Returns false after a generous timeout.
bool waitUntil(const std::function<bool()>& condition,
               std::chrono::milliseconds patience = std::chrono::seconds(20));

/// Runs the Qt event loop for `duration`, to check that something does not happen.
void runFor(std::chrono::milliseconds duration);

} // namespace brellowind::test
