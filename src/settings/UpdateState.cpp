#include "settings/UpdateState.h"

#include <utility>

namespace brellowind {

UpdateState UpdateState::available(Release release) {
    UpdateState state(Case::available);
    state.release_ = std::move(release);
    return state;
}

} // namespace brellowind
