#pragma once

namespace brellowind::platform {

/// The running program as the system knows it.
class Application {
public:
    virtual ~Application() = default;

    /// Asks the program to end. It ends on a later turn of the main loop.
    virtual void terminate() = 0;
};

} // namespace brellowind::platform
