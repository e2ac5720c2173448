// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Task.h"
#include "platform/MainLoop.h"

#include <chrono>

namespace brellowind::platform {

/// Suspends the task for `duration`. Returns false if the task is cancelled first.
Task<bool> sleep(MainLoop& mainLoop, std::chrono::milliseconds duration);

} // namespace brellowind::platform
