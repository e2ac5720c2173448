// SPDX-License-Identifier: MIT

#include "foundation/AbsoluteURL.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <string_view>

namespace brellowind {
namespace {

using namespace std::string_view_literals;

void expectNone(std::initializer_list<std::string_view> texts) {
    for (const auto text : texts)
        EXPECT_FALSE(isAbsoluteURL(text)) << text;
}

TEST(AbsoluteURL, MayHaveAnyScheme) {
    for (const std::string_view url :
         {"https://brellowind.example/download", "HTTP://host.example",
          "mailto:someone@brellowind.example?subject=Some%20words", "http://a",
          "x-store+9.1-b://item", "https://[2001:db8::1]:8443/a;b=c,d?e=f&g#h",
          "https://host.example/~user/!$&'()*+,;=:@-._%2f%C3%A9"})
        EXPECT_TRUE(isAbsoluteURL(url)) << url;
}

TEST(AbsoluteURL, HasAScheme) {
    expectNone({"", "brellowind.example/download", "/download", "//host/", ":", "://host.example",
                "?a:b"});
}

TEST(AbsoluteURL, HasAWellFormedScheme) {
    expectNone({"9p://host", "+x:y", "-x:y", "ht tp://host", " https://h", "ht_tp://host",
                "http\xC3\xA9://host", "ht%74p://host"});
}

TEST(AbsoluteURL, HasSomethingAfterTheColon) {
    expectNone({"https:", "a:"});
}

TEST(AbsoluteURL, HasNoCharactersThatNeedAnEscape) {
    expectNone({"https://host.example/a b", "https://host.example/ ", "https://host.example/\n",
                "https://host.example/\t", "https://host.example/\0"sv, "https://host.example/\x7F",
                "https://host.example/<", "https://host.example/>", "https://host.example/\"",
                "https://host.example/\\", "https://host.example/^", "https://host.example/`",
                "https://host.example/{", "https://host.example/|", "https://host.example/}",
                "https://h\xC3\xB6st.example/"});
}

TEST(AbsoluteURL, HasWholePercentEscapes) {
    expectNone({"https://host.example/%", "https://host.example/%4", "https://host.example/%4G",
                "https://host.example/%G4", "https://host.example/%%41"});
}

} // namespace
} // namespace brellowind
