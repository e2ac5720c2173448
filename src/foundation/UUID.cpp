#include "foundation/UUID.h"

#include <cstdio>
#include <random>

namespace brellowind {
namespace {

std::mt19937_64 seededGenerator() {
    std::random_device device;
    std::seed_seq seed{device(), device(), device(), device(),
                       device(), device(), device(), device()};
    return std::mt19937_64(seed);
}

} // namespace

UUID UUID::random() {
    static thread_local std::mt19937_64 generator = seededGenerator();
    constexpr std::uint64_t version4 = 0x4000;
    constexpr std::uint64_t rfcVariant = 0x8000'0000'0000'0000;
    return {{(generator() & ~std::uint64_t{0xF000}) | version4,
             (generator() & ~std::uint64_t{0xC000'0000'0000'0000}) | rfcVariant}};
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
