#include "platform/Sleep.h"

#include "platform/Operation.h"
#include "platform/Services.h"

namespace brellowind::platform {

Task<bool> sleep(std::chrono::milliseconds duration) {
    Operation<Timer, bool> operation(
        services().mainLoop,
        [duration](Operation<Timer, bool>::Finish finish) {
            return services().mainLoop.scheduleOnce(duration,
                                                    [finish = std::move(finish)] { finish(true); });
        },
        false);
    co_return co_await operation;
}

} // namespace brellowind::platform
