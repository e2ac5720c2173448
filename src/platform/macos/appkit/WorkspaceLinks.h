// SPDX-License-Identifier: MIT

#pragma once

#include "platform/LinkOpener.h"

namespace brellowind::platform {

/// Opens links with the programs that the user has chosen in macOS.
class WorkspaceLinks final : public LinkOpener {
public:
    bool open(std::string_view url) override;
};

} // namespace brellowind::platform
