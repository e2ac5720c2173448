#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brellowind::platform {

/// The applications that run at this moment.
class RunningApplications {
public:
    virtual ~RunningApplications() = default;

    /// One entry an application: its bundle identifier, absent for one that has none.
    virtual std::vector<std::optional<std::string>> bundleIdentifiers() = 0;
};

} // namespace brellowind::platform
