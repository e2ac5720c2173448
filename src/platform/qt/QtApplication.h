#pragma once

#include "platform/Application.h"

namespace brellowind::platform {

/// The Qt application object of this process.
class QtApplication final : public Application {
public:
    void activate() override;
    void terminate() override;
};

} // namespace brellowind::platform
