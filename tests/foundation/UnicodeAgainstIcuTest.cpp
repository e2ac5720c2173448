// SPDX-License-Identifier: MIT

#include "foundation/Unicode.h"
#include "foundation/Utf8.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <unicode/uchar.h>
#include <unicode/utf8.h>

// The macros of ICU narrow their own intermediate values.
#pragma GCC diagnostic ignored "-Wconversion"

// Characters and UTF-8 as a library of Unicode has them.

namespace brellowind {
namespace {

constexpr char32_t lastCharacter = 0x10FFFF;

/// Whether Unicode 15 knows `character`: a newer library knows more.
bool isKnown(char32_t character) {
    UVersionInfo age;
    u_charAge(static_cast<UChar32>(character), age);
    return age[0] <= 15;
}

/// The texts that are tried: made of bytes that begin, continue and spoil characters.
class Generator {
public:
    std::string text() {
        constexpr unsigned char bytes[] = {0x00, 'a',  0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF,
                                           0xC0, 0xC1, 0xC2, 0xDF, 0xE0, 0xE1, 0xEC, 0xED, 0xEE,
                                           0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5, 0xF7, 0xF8, 0xFF};
        std::string made;
        for (auto count = 1 + random_() % 5; count > 0; --count)
            made += static_cast<char>(random_() % 3 ? bytes[random_() % std::size(bytes)]
                                                    : 0x80 + random_() % 0x40);
        return made;
    }

private:
    std::mt19937 random_{20240229};
};

struct Taken {
    char32_t character;
    std::size_t bytes; ///< 1 if the character is invalid: the other bytes are tried again

    bool operator==(const Taken&) const = default;
};

Taken takenByIcu(UChar32 decoded, std::size_t bytes) {
    return decoded < 0 ? Taken{utf8::invalid, 1} : Taken{static_cast<char32_t>(decoded), bytes};
}

Taken first(std::string_view text) {
    auto rest = text;
    const auto character = utf8::takeFirst(rest);
    return {character, text.size() - rest.size()};
}

Taken firstByIcu(std::string_view text) {
    std::int32_t position = 0;
    UChar32 decoded;
    U8_NEXT(text.data(), position, static_cast<std::int32_t>(text.size()), decoded);
    return takenByIcu(decoded, static_cast<std::size_t>(position));
}

TEST(UnicodeAgainstIcu, AgreesOnEveryDecimalDigit) {
    for (char32_t character = 0; character <= lastCharacter; ++character)
        if (isKnown(character)) {
            ASSERT_EQ(unicode::isDecimalDigit(character),
                      u_isdigit(static_cast<UChar32>(character)) != 0)
                << "U+" << std::hex << static_cast<std::uint32_t>(character);
        }
    EXPECT_FALSE(unicode::isDecimalDigit(utf8::invalid));
}

TEST(UnicodeAgainstIcu, AgreesOnEverySpace) {
    for (char32_t character = 0; character <= lastCharacter; ++character)
        if (isKnown(character)) {
            ASSERT_EQ(unicode::isSpaceSeparator(character),
                      u_charType(static_cast<UChar32>(character)) == U_SPACE_SEPARATOR)
                << "U+" << std::hex << static_cast<std::uint32_t>(character);
        }
    EXPECT_FALSE(unicode::isSpaceSeparator(utf8::invalid));
}

TEST(Utf8AgainstIcu, TakesEveryCharacter) {
    for (char32_t character = 0; character <= lastCharacter; ++character) {
        char bytes[U8_MAX_LENGTH];
        std::size_t length = 0;
        UBool failed = false;
        U8_APPEND(bytes, length, sizeof bytes, character, failed);
        if (failed) // a surrogate
            continue;
        const auto text = std::string(bytes, length) + "x";
        ASSERT_EQ(first(text), (Taken{character, length}));
        ASSERT_TRUE(utf8::isValid(text));
    }
}

TEST(Utf8AgainstIcu, AgreesOnWhatIsNoCharacter) {
    Generator generator;
    int invalid = 0;
    int multibyte = 0;
    for (int i = 0; i < 500'000; ++i) {
        const auto text = generator.text();
        ASSERT_EQ(first(text), firstByIcu(text)) << testing::PrintToString(text);
        invalid += first(text).character == utf8::invalid;
        multibyte += first(text).bytes > 1;
    }
    EXPECT_GT(invalid, 50'000);
    EXPECT_GT(multibyte, 10'000);
}

} // namespace
} // namespace brellowind
