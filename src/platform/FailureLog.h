#pragma once

#include "platform/Log.h"

#include <string>
#include <string_view>

namespace brellowind::platform {

/// Writes failures that may repeat to the system log: once, and again when they change.
class FailureLog {
public:
    /// Each line is `prefix` followed by the description. `log` outlives this.
    FailureLog(Log& log, std::string_view prefix);

    void failed(std::string_view description);

    /// The next failure is written whatever its description.
    void succeeded();

private:
    Log& log_;
    std::string prefix_;
    std::string description_; ///< of the last failure; empty after a success
};

} // namespace brellowind::platform
