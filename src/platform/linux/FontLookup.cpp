#include "platform/linux/FontLookup.h"

#include <fontconfig/fontconfig.h>

namespace brellowind::platform {

/// Qt asks the same library, which then knows the answer.
FontLookup::FontLookup() : thread_([] { FcInit(); }) {}

} // namespace brellowind::platform
