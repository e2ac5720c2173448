// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace brellowind {

/// Whether `text` is an absolute URL: a scheme of any kind (mailto as well as https), a colon, and
/// at least one character after it. All characters must be allowed by RFC 3986, and every percent
/// sign must be followed by two hexadecimal digits.
bool isAbsoluteURL(std::string_view text);

} // namespace brellowind
