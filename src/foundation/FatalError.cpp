#include "foundation/FatalError.h"

#include <cstdio>
#include <cstdlib>

namespace brellowind {

void fatalError(std::string_view message) {
    std::fprintf(stderr, "Fatal error: %.*s\n", static_cast<int>(message.size()), message.data());
    std::abort();
}

} // namespace brellowind
