// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

namespace brellowind::platform {

/// The registration for launching at login. Other programs may change it at any time.
class LoginItem {
public:
    enum class Status {
        notRegistered,
        enabled,          ///< launched at the next login
        requiresApproval, ///< registered, but the user has to allow it first
        notFound,         ///< the system cannot tell
    };

    virtual ~LoginItem() = default;

    virtual Status status() = 0;

    /// Returns nullopt on success or if enabled already. Otherwise returns the error; the
    /// registration is unchanged.
    virtual std::optional<std::string> registerItem() = 0;

    /// Returns nullopt on success or if disabled already. Otherwise returns the error; the
    /// registration is unchanged.
    virtual std::optional<std::string> unregisterItem() = 0;
};

} // namespace brellowind::platform
