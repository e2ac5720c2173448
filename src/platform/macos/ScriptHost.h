// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brellowind::platform {

/// The other applications of this session, and the scripts that drive them. Main thread only.
class ScriptHost {
public:
    struct Failure {
        long number; ///< the system's number of the error; 0 when it tells none
        std::string description;
    };

    struct Outcome {
        std::optional<std::string> text; ///< of the result; absent when it has none
        std::optional<Failure> failure;
    };

    virtual ~ScriptHost() = default;

    /// Whether an application with this identifier runs at this moment.
    virtual bool isRunning(std::string_view bundleIdentifier) = 0;

    /// Compiles a script and waits until it has ended. The main loop may run meanwhile. A source of
    /// which no script can be made gives neither a text nor a failure.
    virtual Outcome run(std::string_view source) = 0;
};

} // namespace brellowind::platform
