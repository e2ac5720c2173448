// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

namespace brellowind {

/// The finite decimal number that the whole of `text` spells in C notation, with a decimal point
/// whatever the locale. Absent for other texts: spaces, hexadecimal digits, "inf" and "nan".
std::optional<double> readDecimal(std::string_view text);

} // namespace brellowind
