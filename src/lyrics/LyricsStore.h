// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Published.h"
#include "foundation/Task.h"
#include "lyrics/LyricsState.h"
#include "platform/HttpClient.h"
#include "platform/ProductConstants.h"
#include "platform/TaskRunner.h"
#include "platform/Track.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brellowind {

/// Holds the lyrics of the current track. Stale answers for earlier tracks are ignored. Must be
/// owned by a std::shared_ptr. Main thread only.
class LyricsStore : public std::enable_shared_from_this<LyricsStore> {
public:
    using State = LyricsState;

    /// All references must outlive this object and the tasks that it starts.
    LyricsStore(TaskRunner& tasks, platform::HttpClient& http,
                const platform::ProductConstants& constants);

    /// Loads the lyrics of `track`. Does nothing if its `id` is the current one, also after a
    /// failure.
    void load(const Track& track);

    /// Forgets the current track and cancels a running fetch.
    void clear();

    /// The lines of a `loaded` state, valid until `state` changes; empty in other states.
    const std::vector<LyricLine>& lines() const { return state->lines(); }

    /// The index of the last line whose time is not after `seconds`, if there is one.
    std::optional<std::size_t> activeIndex(double seconds) const;

    /// The time of the first line after `seconds`, if there is one.
    std::optional<double> nextTime(double seconds) const;

    Published<State, LyricsStore> state{State::idle()};

private:
    static Task<void> fetchInto(std::weak_ptr<LyricsStore> store, Task<LyricsState> fetch);

    TaskRunner& tasks_;
    platform::HttpClient& http_;
    const platform::ProductConstants& constants_;

    std::optional<std::string> currentTrackID_;
    std::optional<TaskHandle> task_;
};

} // namespace brellowind
