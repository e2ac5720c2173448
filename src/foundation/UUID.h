#pragma once

#include <array>
#include <cstdint>

namespace brellowind {

/// A 128-bit universally unique identifier.
struct UUID {
    std::array<std::uint64_t, 2> words{}; ///< most significant word first

    bool operator==(const UUID&) const = default;
};

/// Draws many random (version 4) identifiers with one system call, when it is made.
///
/// The generator is SplitMix64, once for each half. Making and seeding a std::mt19937_64 takes
/// about as long as parsing a song, so with it the parser is not 10 times as fast as the ICU form.
class UUIDGenerator {
public:
    UUIDGenerator();

    UUID next();

private:
    std::array<std::uint64_t, 2> state_{};
};

} // namespace brellowind
