#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brellowind::platform {

/// How the execution of a script ended. Both absent: the script could not be created, or its result
/// has no form as text.
struct ScriptOutcome {
    std::optional<std::string> text;
    std::optional<std::string> error; ///< the description of what went wrong while it ran
};

/// Runs scripts that drive other applications.
class Scripting {
public:
    virtual ~Scripting() = default;

    /// Synchronous. Implementations bound the wait so that a hung application cannot freeze the
    /// program.
    virtual ScriptOutcome execute(std::string_view source) = 0;
};

} // namespace brellowind::platform
