// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Log.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace brellowind::platform {

/// Logs to standard error, which the session's journal records. Control characters, as in messages
/// of servers and players, are replaced by spaces.
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
