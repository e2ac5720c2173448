// SPDX-License-Identifier: MIT

#pragma once

#include "lyrics/LyricLine.h"

#include <string>
#include <utility>
#include <vector>

namespace brellowind {

/// The state of a track's lyrics.
class LyricsState {
public:
    enum class Case {
        idle,     ///< no track
        loading,  ///< a fetch is running
        loaded,   ///< synchronised lines, sorted by time, not empty
        plain,    ///< text without times, not empty
        notFound, ///< the service has no lyrics for the track
        failed,   ///< the fetch failed
    };

    static LyricsState idle() { return LyricsState(Case::idle); }
    static LyricsState loading() { return LyricsState(Case::loading); }
    static LyricsState loaded(std::vector<LyricLine> lines) {
        return LyricsState(Case::loaded, std::move(lines));
    }
    static LyricsState plain(std::string text) {
        return LyricsState(Case::plain, {}, std::move(text));
    }
    static LyricsState notFound() { return LyricsState(Case::notFound); }
    static LyricsState failed() { return LyricsState(Case::failed); }

    Case which() const { return case_; }

    /// The lines of a `loaded` state; empty in other states.
    const std::vector<LyricLine>& lines() const { return lines_; }

    /// The text of a `plain` state; empty in other states.
    const std::string& text() const { return text_; }

    bool operator==(const LyricsState&) const = default;

private:
    explicit LyricsState(Case which, std::vector<LyricLine> lines = {}, std::string text = {})
        : case_(which), lines_(std::move(lines)), text_(std::move(text)) {}

    Case case_;
    std::vector<LyricLine> lines_;
    std::string text_;
};

} // namespace brellowind
