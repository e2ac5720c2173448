// SPDX-License-Identifier: MIT

#pragma once

/// Properties of characters, as of Unicode 15.
namespace brellowind::unicode {

/// A decimal digit of any script (category Nd).
bool isDecimalDigit(char32_t character);

/// A space (category Zs); neither the tab nor any line break is one.
bool isSpaceSeparator(char32_t character);

} // namespace brellowind::unicode
