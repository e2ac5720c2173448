// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Screens.h"

#include <memory>

namespace brellowind::platform {

/// The screens of macOS, with their notches.
class AppKitScreens final : public Screens {
public:
    AppKitScreens();
    AppKitScreens(const AppKitScreens&) = delete;
    AppKitScreens& operator=(const AppKitScreens&) = delete;
    ~AppKitScreens() override;

    std::vector<Screen> screens() override;

    /// The one with the window that has the keyboard focus.
    std::optional<Screen> main() override;

    Subscription onChange(Observers::Callback callback) override;

private:
    struct Observation;

    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
    std::unique_ptr<Observation> observation_;
};

} // namespace brellowind::platform
