#pragma once

#include "lyrics/LrclibResponse.h"

namespace brellowind::test {

/// `LrclibResponse::decode` in its plainest form: the tree of the whole body is made and looked at.
/// Throws nlohmann::json::out_of_range if the body has a number that a double cannot hold.
std::optional<LrclibResponse> decodeWhole(std::string_view body);

} // namespace brellowind::test
