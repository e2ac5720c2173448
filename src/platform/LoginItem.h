#pragma once

#include <optional>
#include <string>

namespace brellowind::platform {

/// The registration to be started at login. Others may change it at any time.
class LoginItem {
public:
    enum class Status {
        notRegistered,
        enabled,          ///< the next login starts the program
        requiresApproval, ///< registered, but the user has to allow it first
        notFound,         ///< the system cannot tell
    };

    virtual ~LoginItem() = default;

    virtual Status status() = 0;

    /// Absent on success, else what went wrong, in which case the registration is as it was.
    /// Registering an item that is enabled succeeds and changes nothing.
    virtual std::optional<std::string> registerItem() = 0;

    /// Absent on success, else what went wrong, in which case the registration is as it was.
    /// Unregistering an item that would not be started succeeds and changes nothing.
    virtual std::optional<std::string> unregisterItem() = 0;
};

} // namespace brellowind::platform
