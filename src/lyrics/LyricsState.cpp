#include "lyrics/LyricsState.h"

#include <utility>

namespace brellowind {

LyricsState LyricsState::loaded(std::vector<LyricLine> lines) {
    LyricsState state(Case::loaded);
    state.lines_ = std::move(lines);
    return state;
}

LyricsState LyricsState::plain(std::string text) {
    LyricsState state(Case::plain);
    state.text_ = std::move(text);
    return state;
}

} // namespace brellowind
