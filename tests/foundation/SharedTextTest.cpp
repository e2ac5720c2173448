// SPDX-License-Identifier: MIT

#include "foundation/SharedText.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

TEST(SharedText, ComparesByItsBytes) {
    EXPECT_EQ(SharedText("chorus"), SharedText("chorus"));
    EXPECT_EQ(SharedText("chorus"), "chorus");
    EXPECT_NE(SharedText("chorus"), "verse");
    EXPECT_EQ(SharedText(), "");
}

TEST(SharedText, OutlivesTheStringItWasCutFrom) {
    auto whole = std::make_shared<const std::string>("one two");
    const SharedText text(whole, std::string_view(*whole).substr(4));
    whole.reset();
    EXPECT_EQ(text, "two");
}

} // namespace
} // namespace brellowind
