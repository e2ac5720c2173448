// SPDX-License-Identifier: MIT

#include "platform/linux/x11/RaiseBudget.h"

#include <algorithm>

namespace brellowind::platform {

bool RaiseBudget::spend(TimePoint now) {
    if (now < pauseEnd_)
        return false;
    while (!raises_.empty() && now - raises_.front() >= window)
        raises_.pop_front();
    if (raises_.size() < raisesInAWindow) {
        raises_.push_back(now);
        return true;
    }
    const bool sameFight = pause_.count() > 0 && now - pauseEnd_ < longestPause;
    pause_ = sameFight ? std::min(2 * pause_, longestPause) : firstPause;
    pauseEnd_ = now + pause_;
    return false;
}

} // namespace brellowind::platform
