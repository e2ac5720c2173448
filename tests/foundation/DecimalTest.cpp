// SPDX-License-Identifier: MIT

#include "foundation/Decimal.h"

#include <clocale>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace brellowind {
namespace {

TEST(Decimal, ReadsNumbersInCNotation) {
    EXPECT_EQ(readDecimal("0"), 0.0);
    EXPECT_EQ(readDecimal("215000"), 215000.0);
    EXPECT_EQ(readDecimal("12.5"), 12.5);
    EXPECT_EQ(readDecimal("007"), 7.0);
    EXPECT_EQ(readDecimal("3."), 3.0);
    EXPECT_EQ(readDecimal(".25"), 0.25);
    EXPECT_EQ(readDecimal("-1.5"), -1.5);
    EXPECT_EQ(readDecimal("+1.5"), 1.5);
    EXPECT_EQ(readDecimal("2.15E+5"), 215000.0);
    EXPECT_EQ(readDecimal("25e-2"), 0.25);
}

TEST(Decimal, ReadsTheNearestNumber) {
    EXPECT_EQ(readDecimal("0.1"), 0.1);
    EXPECT_EQ(readDecimal("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(readDecimal("0." + std::string(300, '0') + "1e301"), 1.0);
    EXPECT_EQ(readDecimal("1e-400"), 0.0);
}

TEST(Decimal, ReadsNothingElse) {
    for (const char* text :
         {"",      "-",         "+",   ".",      "e5",    "1e",     "1e+", "--1",  "+-1",
          "1.2.3", "1-2",       "1,5", " 1",     "1 ",    "\t1",    "1\n", "0x10", "0x1p3",
          "inf",   "-infinity", "nan", "nan(1)", "1e400", "-1e400", "½",   "١"})
        EXPECT_EQ(readDecimal(text), std::nullopt) << '"' << text << '"';
    EXPECT_EQ(readDecimal(std::string_view("1\0", 2)), std::nullopt);
}

TEST(Decimal, ReadsOnlyTheCharactersOfTheText) {
    EXPECT_EQ(readDecimal(std::string_view("1234").substr(1, 2)), 23.0);
}

TEST(Decimal, KeepsTheDecimalPointInALocaleWithAComma) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
#ifdef BRELLOWIND_TEST_LOCALES
    setenv("LOCPATH", BRELLOWIND_TEST_LOCALES, 1);
#endif
    ASSERT_TRUE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"));
    EXPECT_EQ(readDecimal("1.5"), 1.5);
    EXPECT_EQ(readDecimal("1,5"), std::nullopt);
    std::setlocale(LC_NUMERIC, before.c_str());
}

} // namespace
} // namespace brellowind
