#pragma once

#include "platform/Log.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace brellowind::platform {

/// The log of a session's programs: standard error, which the session's journal keeps. A line stays
/// one line: what servers and players say in it may hold control characters, which become spaces.
class StderrLog final : public Log {
public:
    void write(std::string_view line) override {
        std::string printable(line);
        std::ranges::replace_if(printable, isControl, ' ');
        std::fprintf(stderr, "%s\n", printable.c_str());
    }

private:
    static bool isControl(char character) {
        return (character >= 0 && character < ' ') || character == '\x7F';
    }
};

} // namespace brellowind::platform
