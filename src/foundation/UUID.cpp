// SPDX-License-Identifier: MIT

#include "foundation/UUID.h"

#include <exception>
#include <sys/random.h>

namespace brellowind {
namespace {

std::uint64_t splitMix64(std::uint64_t& state) {
    state += 0x9E37'79B9'7F4A'7C15;
    std::uint64_t mixed = state;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58'476D'1CE4'E5B9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D0'49BB'1331'11EB;
    return mixed ^ (mixed >> 31);
}

} // namespace

UUIDGenerator::UUIDGenerator() {
    if (getentropy(state_.data(), sizeof state_) != 0)
        std::terminate(); // the system has no random numbers
}

UUID UUIDGenerator::next() {
    constexpr std::uint64_t version4 = 0x4000;
    constexpr std::uint64_t rfcVariant = 0x8000'0000'0000'0000;
    const std::uint64_t high = splitMix64(state_[0]);
    const std::uint64_t low = splitMix64(state_[1]);
    return {{(high & ~std::uint64_t{0xF000}) | version4,
             (low & ~std::uint64_t{0xC000'0000'0000'0000}) | rfcVariant}};
}

} // namespace brellowind
