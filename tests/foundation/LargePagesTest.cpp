#include "foundation/LargePages.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace brellowind {
namespace {

TEST(LargePages, ChangeNothingOfWhatIsInMemory) {
    for (const std::size_t size : {0U, 1U, 4096U, 4U << 20, 9'000'001U}) {
        std::vector<char> bytes(size, 'x');
        preferLargePages(bytes.data(), bytes.size());
        EXPECT_EQ(std::ranges::count(bytes, 'x'), static_cast<std::ptrdiff_t>(size));
    }
}

TEST(LargePages, MayBeAskedForAnywhereInABuffer) {
    std::vector<char> bytes(16 << 20, 'x');
    for (const std::size_t begin : {1U, 4095U, 4097U, 1'000'003U})
        preferLargePages(bytes.data() + begin, bytes.size() - begin);
    EXPECT_EQ(std::ranges::count(bytes, 'x'), static_cast<std::ptrdiff_t>(bytes.size()));
}

} // namespace
} // namespace brellowind
