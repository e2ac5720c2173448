#pragma once

#include <string_view>

namespace brellowind {

/// Whether `candidate` orders after `than`, both UTF-8. They are compared from the left: runs of
/// the digits 0 to 9 that stand opposite each other by their value, everything else by code point,
/// and a text orders after its own beginning: 1.10 after 1.9, 1.2.0 after 1.2, v1.0 after 9.9.
///
/// A strict total order. Texts that differ only in zeros that lead a digit run, such as 2 and 02,
/// order by their length, then by code point.
bool isNewer(std::string_view candidate, std::string_view than);

} // namespace brellowind
