// SPDX-License-Identifier: MIT

#include "platform/Sleep.h"

#include "platform/Operation.h"

namespace brellowind::platform {

Task<bool> sleep(MainLoop& mainLoop, std::chrono::milliseconds duration) {
    Operation<Timer, bool> operation(
        mainLoop,
        [&mainLoop, duration](Operation<Timer, bool>::Finish finish) {
            return mainLoop.scheduleOnce(duration, [finish = std::move(finish)] { finish(true); });
        },
        false);
    co_return co_await operation;
}

} // namespace brellowind::platform
