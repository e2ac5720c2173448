#pragma once

#include <thread>

namespace brellowind::platform {

/// Looks up which fonts there are, beside what else has to be done before the first text is laid
/// out. Nobody may change the environment before `wait` returns: the lookup reads it.
class FontLookup {
public:
    /// Begins. Whatever changes the environment at start, such as an application object, comes
    /// before.
    FontLookup();

    /// Returns when the fonts are known.
    void wait() { thread_.join(); }

private:
    std::jthread thread_;
};

} // namespace brellowind::platform
