// SPDX-License-Identifier: MIT

#include "lyrics/LyricsStore.h"

#include "lyrics/LrclibAPI.h"

#include <algorithm>
#include <utility>

namespace brellowind {
namespace {

auto firstAfter(const std::vector<LyricLine>& lines, double seconds) {
    return std::ranges::partition_point(
        lines, [seconds](double time) { return time <= seconds; }, &LyricLine::time);
}

} // namespace

LyricsStore::LyricsStore(TaskRunner& tasks, platform::HttpClient& http,
                         const platform::ProductConstants& constants)
    : tasks_(tasks), http_(http), constants_(constants) {}

void LyricsStore::load(const Track& track) {
    auto id = track.id();
    if (currentTrackID_ == id)
        return;
    currentTrackID_ = std::move(id);
    if (task_)
        task_->cancel();
    state.set(State::loading());
    task_ = tasks_.start(fetchInto(weak_from_this(), LrclibAPI::fetch(http_, constants_, track)));
}

void LyricsStore::clear() {
    if (task_)
        task_->cancel();
    currentTrackID_.reset();
    state.set(State::idle());
}

Task<void> LyricsStore::fetchInto(std::weak_ptr<LyricsStore> weakStore, Task<LyricsState> fetch) {
    auto result = co_await std::move(fetch);
    // A later load or clear cancels this task: its answer is stale.
    if ((co_await CurrentStopToken{}).stopRequested())
        co_return;
    if (const auto store = weakStore.lock())
        store->state.set(std::move(result));
}

std::optional<std::size_t> LyricsStore::activeIndex(double seconds) const {
    const auto next = firstAfter(lines(), seconds);
    if (next == lines().begin())
        return std::nullopt;
    return static_cast<std::size_t>(next - lines().begin()) - 1;
}

std::optional<double> LyricsStore::nextTime(double seconds) const {
    const auto next = firstAfter(lines(), seconds);
    if (next == lines().end())
        return std::nullopt;
    return next->time;
}

} // namespace brellowind
