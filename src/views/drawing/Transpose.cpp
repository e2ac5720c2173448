#include "views/drawing/Transpose.h"

#include <array>
#include <cstring>

namespace brellowind {
namespace {

/// Exchanges rows and columns of `width` × `height` pixels that begin at `x`, `y`.
template <typename Pixel>
void transposePart(Pixels<Pixel> from, Pixels<Pixel> to, int x, int y, int width, int height) {
    for (int column = x; column < x + width; ++column)
        for (int row = y; row < y + height; ++row)
            *to.at(row, column) = *from.at(column, row);
}

constexpr int blockSide = 16;

/// Exchanges rows and columns of a block of bytes. Interleaving the upper half of its rows with the
/// lower half moves every byte by one bit of its row's number into its column's, and four such
/// rounds exchange the two numbers.
void transposeBlock(Pixels<uchar> from, Pixels<uchar> to, int x, int y) {
    using Row = uchar __attribute__((vector_size(blockSide)));
    constexpr std::size_t half = blockSide / 2;
    std::array<Row, blockSide> rows;
    for (int i = 0; i < blockSide; ++i)
        std::memcpy(&rows[static_cast<std::size_t>(i)], from.at(x, y + i), blockSide);
    for (int round = 0; round < 4; ++round) {
        std::array<Row, blockSide> next;
        for (std::size_t i = 0; i < half; ++i) {
            next[2 * i] = __builtin_shufflevector(rows[i], rows[i + half], 0, 16, 1, 17, 2, 18, 3,
                                                  19, 4, 20, 5, 21, 6, 22, 7, 23);
            next[2 * i + 1] = __builtin_shufflevector(rows[i], rows[i + half], 8, 24, 9, 25, 10, 26,
                                                      11, 27, 12, 28, 13, 29, 14, 30, 15, 31);
        }
        rows = next;
    }
    for (int i = 0; i < blockSide; ++i)
        std::memcpy(to.at(y, x + i), &rows[static_cast<std::size_t>(i)], blockSide);
}

} // namespace

void transpose(Pixels<uchar> from, Pixels<uchar> to, int width, int height) {
    const int right = width / blockSide * blockSide;
    const int bottom = height / blockSide * blockSide;
    for (int y = 0; y < bottom; y += blockSide)
        for (int x = 0; x < right; x += blockSide)
            transposeBlock(from, to, x, y);
    // What no whole block fits into.
    transposePart(from, to, right, 0, width - right, height);
    transposePart(from, to, 0, bottom, right, height - bottom);
}

void transpose(Pixels<QRgb> from, Pixels<QRgb> to, int width, int height) {
    transposePart(from, to, 0, 0, width, height);
}

} // namespace brellowind
