// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Log.h"

#include <string>
#include <string_view>

namespace brellowind::platform {

/// Logs failures without repetition: a failure is written when it differs from the previous one.
class FailureLog {
public:
    /// Each line is `prefix` followed by the description. `log` must outlive this object.
    FailureLog(Log& log, std::string_view prefix);

    void failed(std::string_view description);

    /// The next failure is written, also if it equals the last one.
    void succeeded();

private:
    Log& log_;
    std::string prefix_;
    std::string description_; ///< of the last failure; empty after a success
};

} // namespace brellowind::platform
