// SPDX-License-Identifier: MIT

#include "platform/FailureLog.h"

namespace brellowind::platform {

FailureLog::FailureLog(Log& log, std::string_view prefix) : log_(log), prefix_(prefix) {}

void FailureLog::failed(std::string_view description) {
    if (description == description_)
        return;
    description_ = description;
    log_.write(prefix_ + description_);
}

void FailureLog::succeeded() {
    description_.clear();
}

} // namespace brellowind::platform
