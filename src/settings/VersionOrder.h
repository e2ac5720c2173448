#pragma once

#include <string_view>

namespace brellowind {

/// Whether `candidate` orders after `than`, both UTF-8, in a strict total order from the left:
/// opposite runs of the digits 0 to 9 by their value, all else by code point, a text after its own
/// beginning (1.10 after 1.9, 1.2.0 after 1.2, v1.0 after 9.9). Texts that differ only in the
/// leading zeros of a run order by their length, then by code point.
bool isNewer(std::string_view candidate, std::string_view than);

} // namespace brellowind
