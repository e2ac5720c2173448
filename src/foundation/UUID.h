#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace brellowind {

/// A 128-bit universally unique identifier.
struct UUID {
    std::array<std::uint64_t, 2> words{}; ///< most significant word first

    /// A fresh random (version 4) identifier. Cheap: no system call after the first one.
    static UUID random();

    /// The usual form of 36 characters, with upper-case hexadecimal digits.
    std::string string() const;

    bool operator==(const UUID&) const = default;
};

} // namespace brellowind
