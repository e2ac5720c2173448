// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <unicode/regex.h>
#include <unicode/uniset.h>
#include <unicode/unistr.h>
#include <vector>

namespace brellowind::test {

/// Reference parser of LRC text, with a regular expression for time tags.
class PatternParser {
public:
    struct Line {
        double time; ///< seconds
        std::string text;

        bool operator==(const Line&) const = default;
        friend std::ostream& operator<<(std::ostream& out, const Line& line);
    };

    PatternParser();

    /// The lines of `text`, sorted by time.
    std::vector<Line> parse(const icu::UnicodeString& text) const;

private:
    void readPiece(const icu::UnicodeString& piece, std::vector<Line>& lines) const;
    std::string trimmed(const icu::UnicodeString& text) const;

    std::unique_ptr<icu::RegexMatcher> tag_;
    icu::UnicodeSet spaces_;
};

} // namespace brellowind::test
