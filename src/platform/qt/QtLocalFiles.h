// SPDX-License-Identifier: MIT

#pragma once

#include "platform/LocalFiles.h"

namespace brellowind::platform {

class QtLocalFiles final : public LocalFiles {
public:
    std::optional<std::string> read(std::string_view url, std::size_t maximumBytes) override;
};

} // namespace brellowind::platform
