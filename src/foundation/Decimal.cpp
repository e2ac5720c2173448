// SPDX-License-Identifier: MIT

#include "foundation/Decimal.h"

#include <cmath>
#include <cstdlib>
#include <locale.h>
#include <string>
#if __has_include(<xlocale.h>) // strtod_l, where <stdlib.h> does not have it
#include <xlocale.h>
#endif

namespace brellowind {

// Not every standard library that the program is built with has std::from_chars for double.
std::optional<double> readDecimal(std::string_view text) {
    if (text.empty() || text.find_first_not_of("+-.0123456789Ee") != text.npos)
        return std::nullopt;
    const std::string terminated(text);
    const locale_t locale = newlocale(LC_ALL_MASK, "C", locale_t{});
    char* stop = nullptr;
    const double value = strtod_l(terminated.c_str(), &stop, locale);
    freelocale(locale);
    if (stop != terminated.c_str() + terminated.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

} // namespace brellowind
