#pragma once

#include <QString>
#include <string_view>

namespace brellowind {

/// `text` is UTF-8.
inline QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace brellowind
