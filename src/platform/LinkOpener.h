// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace brellowind::platform {

/// Opens links in the user's default programs: browser, mail client.
class LinkOpener {
public:
    virtual ~LinkOpener() = default;

    /// `url` is absolute and percent-encoded. Returns false if the system rejects it.
    virtual bool open(std::string_view url) = 0;
};

} // namespace brellowind::platform
