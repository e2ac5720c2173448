// SPDX-License-Identifier: MIT

#include "foundation/AbsoluteURL.h"

#include <gtest/gtest.h>
#include <string_view>

namespace brellowind {
namespace {

using namespace std::string_view_literals;

class AbsoluteURL : public testing::TestWithParam<std::string_view> {};
class NoAbsoluteURL : public testing::TestWithParam<std::string_view> {};

TEST_P(AbsoluteURL, IsOne) {
    EXPECT_TRUE(isAbsoluteURL(GetParam()));
}

TEST_P(NoAbsoluteURL, IsNone) {
    EXPECT_FALSE(isAbsoluteURL(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(AnyScheme, AbsoluteURL,
                         testing::Values("https://brellowind.example/download",
                                         "HTTP://host.example",
                                         "mailto:someone@brellowind.example?subject=Some%20words",
                                         "http://a", "x-store+9.1-b://item",
                                         "https://[2001:db8::1]:8443/a;b=c,d?e=f&g#h",
                                         "https://host.example/~user/!$&'()*+,;=:@-._%2f%C3%A9"));

INSTANTIATE_TEST_SUITE_P(WithoutScheme, NoAbsoluteURL,
                         testing::Values("", "brellowind.example/download", "/download", "//host/",
                                         ":", "://host.example", "?a:b"));

INSTANTIATE_TEST_SUITE_P(MalformedScheme, NoAbsoluteURL,
                         testing::Values("9p://host", "+x:y", "-x:y", "ht tp://host", " https://h",
                                         "ht_tp://host", "http\xC3\xA9://host", "ht%74p://host"));

INSTANTIATE_TEST_SUITE_P(NothingAfterTheColon, NoAbsoluteURL, testing::Values("https:", "a:"));

INSTANTIATE_TEST_SUITE_P(CharactersThatNeedAnEscape, NoAbsoluteURL,
                         testing::Values("https://host.example/a b", "https://host.example/ ",
                                         "https://host.example/\n", "https://host.example/\t",
                                         "https://host.example/\0"sv, "https://host.example/\x7F",
                                         "https://host.example/<", "https://host.example/>",
                                         "https://host.example/\"", "https://host.example/\\",
                                         "https://host.example/^", "https://host.example/`",
                                         "https://host.example/{", "https://host.example/|",
                                         "https://host.example/}", "https://h\xC3\xB6st.example/"));

INSTANTIATE_TEST_SUITE_P(BrokenPercentEscapes, NoAbsoluteURL,
                         testing::Values("https://host.example/%", "https://host.example/%4",
                                         "https://host.example/%4G", "https://host.example/%G4",
                                         "https://host.example/%%41"));

} // namespace
} // namespace brellowind
