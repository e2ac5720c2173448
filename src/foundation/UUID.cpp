#include "foundation/UUID.h"

#include <bit>
#include <cstdio>
#include <random>

namespace brellowind {
namespace {

/// The xoshiro256++ generator: its numbers are as good as random for telling things apart, and take
/// a nanosecond each.
class Generator {
public:
    std::uint64_t next() {
        const std::uint64_t number = std::rotl(state_[0] + state_[3], 23) + state_[0];
        const std::uint64_t shifted = state_[1] << 17;
        state_[2] ^= state_[0];
        state_[3] ^= state_[1];
        state_[1] ^= state_[2];
        state_[0] ^= state_[3];
        state_[2] ^= shifted;
        state_[3] = std::rotl(state_[3], 45);
        return number;
    }

    bool isSeeded() const { return state_ != std::array<std::uint64_t, 4>{}; }

    void seed() {
        std::random_device device;
        for (auto& word : state_)
            word = std::uint64_t{device()} << 32 | device();
        state_[0] |= 1; // all zero is the one state that it never leaves
    }

private:
    std::array<std::uint64_t, 4> state_{};
};

constinit thread_local Generator generator; // seeded with its first use

} // namespace

UUID UUID::random() {
    constexpr std::uint64_t version4 = 0x4000;
    constexpr std::uint64_t rfcVariant = 0x8000'0000'0000'0000;
    auto& numbers = generator;
    if (!numbers.isSeeded())
        numbers.seed();
    const std::uint64_t high = numbers.next();
    const std::uint64_t low = numbers.next();
    return {{(high & ~std::uint64_t{0xF000}) | version4,
             (low & ~std::uint64_t{0xC000'0000'0000'0000}) | rfcVariant}};
}

std::string UUID::string() const {
    std::array<char, 37> text{};
    const auto high = static_cast<unsigned long long>(words[0]);
    const auto low = static_cast<unsigned long long>(words[1]);
    std::snprintf(text.data(), text.size(), "%08llX-%04llX-%04llX-%04llX-%012llX", high >> 32,
                  (high >> 16) & 0xFFFF, high & 0xFFFF, low >> 48, low & 0xFFFF'FFFF'FFFF);
    return text.data();
}

} // namespace brellowind
