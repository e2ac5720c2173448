#pragma once

#include "platform/Log.h"

#include <cstdio>

namespace brellowind::platform {

/// The log of a session's programs: standard error, which the session's journal keeps.
class StderrLog final : public Log {
public:
    void write(std::string_view line) override {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(line.size()), line.data());
    }
};

} // namespace brellowind::platform
