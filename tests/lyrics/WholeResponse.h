// SPDX-License-Identifier: MIT

#pragma once

#include "lyrics/LrclibResponse.h"

namespace brellowind::test {

/// Reference implementation of `LrclibResponse::decode` that parses the whole document. Throws
/// nlohmann::json::out_of_range if a number overflows a double.
std::optional<LrclibResponse> decodeWhole(std::string_view body);

} // namespace brellowind::test
