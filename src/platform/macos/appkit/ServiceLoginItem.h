// SPDX-License-Identifier: MIT

#pragma once

#include "platform/LoginItem.h"

namespace brellowind::platform {

/// The login item of the bundle that this program was started from. The system settings show it,
/// and the user can switch it off there.
class ServiceLoginItem final : public LoginItem {
public:
    Status status() override;
    std::optional<std::string> registerItem() override;
    std::optional<std::string> unregisterItem() override;
};

} // namespace brellowind::platform
