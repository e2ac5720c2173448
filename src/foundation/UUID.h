// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>

namespace brellowind {

/// A 128-bit universally unique identifier.
struct UUID {
    std::array<std::uint64_t, 2> words{}; ///< most significant word first

    bool operator==(const UUID&) const = default;
};

/// Generates random (version 4) identifiers. Seeded by one system call in the constructor.
///
/// Uses SplitMix64, one for each half: constructing and seeding a std::mt19937_64 takes about as
/// long as parsing a song.
class UUIDGenerator {
public:
    UUIDGenerator();

    UUID next();

private:
    std::array<std::uint64_t, 2> state_{};
};

} // namespace brellowind
