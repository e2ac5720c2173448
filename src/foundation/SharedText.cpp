#include "foundation/SharedText.h"

namespace brellowind {

void SharedBytes::release() {
    delete block_;
}

} // namespace brellowind
