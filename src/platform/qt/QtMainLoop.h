// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"

namespace brellowind::platform {

/// The Qt event loop of the calling thread. A Qt application object must exist.
class QtMainLoop final : public MainLoop {
public:
    std::unique_ptr<Timer> scheduleOnce(std::chrono::milliseconds delay, Handler handler) override;
    std::unique_ptr<RepeatingTimer> scheduleRepeating(std::chrono::milliseconds interval,
                                                      Handler handler) override;
    std::unique_ptr<NextTurn> onNextTurn(Handler handler) override;
    void quit() override;
};

} // namespace brellowind::platform
