#include "views/drawing/Transpose.h"

#include <gtest/gtest.h>
#include <vector>

namespace brellowind {
namespace {

/// Every pixel of a number of its own, exchanged, with clear lines' ends around them.
template <typename Pixel>
void expectExchange(int width, int height) {
    constexpr int beside = 3;
    const auto room = [](int across, int down) {
        return std::vector<Pixel>(static_cast<std::size_t>((across + beside) * down));
    };
    auto pixels = room(width, height);
    auto exchanged = room(height, width);
    const Pixels<Pixel> from{pixels.data(), width + beside};
    const Pixels<Pixel> to{exchanged.data(), height + beside};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            *from.at(x, y) = static_cast<Pixel>(1 + x + 31 * y);
    transpose(from, to, width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            ASSERT_EQ(*to.at(y, x), *from.at(x, y))
                << x << ", " << y << " of " << width << " × " << height;
    for (int x = 0; x < width; ++x)
        for (int i = 0; i < beside; ++i)
            ASSERT_EQ(*to.at(height + i, x), 0) << "it writes beside the image";
}

TEST(Transpose, ExchangesRowsAndColumnsOfAnySize) {
    for (const int width : {1, 2, 15, 16, 17, 31, 32, 50, 300})
        for (const int height : {1, 2, 15, 16, 17, 33, 48, 61}) {
            expectExchange<uchar>(width, height);
            expectExchange<QRgb>(width, height);
        }
}

} // namespace
} // namespace brellowind
