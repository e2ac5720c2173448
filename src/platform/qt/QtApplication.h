// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Application.h"
#include "platform/WindowSystem.h"

namespace brellowind::platform {

/// The Qt application object of this process.
class QtApplication final : public Application {
public:
    /// `windowSystem` must outlive this object.
    explicit QtApplication(WindowSystem& windowSystem) : windowSystem_(windowSystem) {}

    void activate() override { windowSystem_.activate(); }
    void terminate() override;

private:
    WindowSystem& windowSystem_;
};

} // namespace brellowind::platform
