// SPDX-License-Identifier: MIT

#pragma once

namespace brellowind::platform {

/// The running program as the system knows it.
class Application {
public:
    virtual ~Application() = default;

    /// Brings the program's windows to the front, whichever application is active.
    virtual void activate() = 0;

    /// Asks the program to quit. It quits on a later turn of the main loop.
    virtual void terminate() = 0;
};

} // namespace brellowind::platform
