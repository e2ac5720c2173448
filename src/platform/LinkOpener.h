#pragma once

#include <string_view>

namespace brellowind::platform {

/// Hands links to the programs that the user has chosen for them: browser, mail program.
class LinkOpener {
public:
    virtual ~LinkOpener() = default;

    /// `url` is absolute and percent-encoded. False when the system would not take it.
    virtual bool open(std::string_view url) = 0;
};

} // namespace brellowind::platform
