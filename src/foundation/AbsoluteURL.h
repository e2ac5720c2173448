#pragma once

#include <string_view>

namespace brellowind {

/// Whether `text` is an absolute URL: a scheme, a colon, and at least one character after it, all
/// of them such that RFC 3986 lets them stand in a URL, and every percent sign followed by two
/// hexadecimal digits. Nothing is asked of the scheme: mailto counts as https does.
bool isAbsoluteURL(std::string_view text);

} // namespace brellowind
