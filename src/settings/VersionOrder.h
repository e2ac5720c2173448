// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace brellowind {

/// Whether `candidate` is a newer version than `than`, both UTF-8. A strict total order, compared
/// from the left: runs of the digits 0 to 9 by value, all else by code point, a prefix first
/// (1.9 < 1.10, 1.2 < 1.2.0, 9.9 < v1.0). Texts that differ only in leading zeros compare by
/// length, then by code point.
bool isNewer(std::string_view candidate, std::string_view than);

} // namespace brellowind
