// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HttpClient.h"
#include "platform/Images.h"
#include "platform/LinkOpener.h"
#include "platform/LocalFiles.h"
#include "platform/Log.h"
#include "platform/LoginItem.h"
#include "platform/MainLoop.h"
#include "platform/Player.h"
#include "platform/ProductConstants.h"
#include "platform/WindowSystem.h"

#include <functional>
#include <memory>

namespace brellowind::platform {

/// Owns all services of the operating system. Main thread only.
class Machine {
public:
    virtual ~Machine() = default;

    virtual MainLoop& mainLoop() = 0;
    virtual Log& log() = 0;
    virtual HttpClient& http() = 0;
    virtual ImageDecoder& images() = 0;
    virtual LocalFiles& files() = 0;
    virtual Player& player() = 0;
    virtual WindowSystem& windowSystem() = 0;
    virtual LinkOpener& links() = 0;
    virtual LoginItem& loginItem() = 0;

    /// Makes this process the only instance of the program in its session. `onSecondStart` runs
    /// whenever another instance is started. Returns false if an instance is running already: it
    /// has been notified, and this process should exit. Call once.
    virtual bool claimSession(std::function<void()> onSecondStart) = 0;

    /// Runs the main loop until it quits. Returns the exit status of the process.
    virtual int run() = 0;
};

/// Makes the machine of this process. Call once. Returns null, after one line on standard error, if
/// there is no usable window system. `argc` and `argv` must outlive the machine.
std::unique_ptr<Machine> makeMachine(int& argc, char** argv, const ProductConstants& constants);

} // namespace brellowind::platform
