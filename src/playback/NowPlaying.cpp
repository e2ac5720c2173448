// SPDX-License-Identifier: MIT

#include "playback/NowPlaying.h"

#include "platform/Sleep.h"

#include <utility>
#include <variant>

namespace brellowind {

using platform::Player;

NowPlaying::NowPlaying(platform::MainLoop& mainLoop, TaskRunner& tasks, Clock clock, Player& player)
    : mainLoop_(mainLoop), tasks_(tasks), clock_(std::move(clock)), player_(player),
      lastSyncDate_(clock_()) {}

void NowPlaying::start() {
    stop();
    poll();
    // Weak, so that the timer does not keep this alive; locked, since an observer may release it.
    timer_ = mainLoop_.scheduleRepeating(pollInterval, [weakSelf = weak_from_this()] {
        if (const auto self = weakSelf.lock())
            self->poll();
    });
    ticker_ = mainLoop_.scheduleRepeating(tickInterval, [weakSelf = weak_from_this()] {
        if (const auto self = weakSelf.lock())
            self->tick();
    });
    ticker_->setPaused(!isPlaying.get());
}

void NowPlaying::stop() {
    timer_.reset();
    ticker_.reset();
    if (question_)
        question_->cancel();
    question_.reset();
}

void NowPlaying::togglePlayPause() {
    setPlaying(!isPlaying.get());
    toggledSinceQuestion_ = true;
    tasks_.start(player_.playPause());
    tasks_.start(confirmToggle(shared_from_this()));
}

Task<void> NowPlaying::confirmToggle(std::shared_ptr<NowPlaying> self) {
    co_await platform::sleep(self->mainLoop_, confirmationDelay);
    self->poll();
}

void NowPlaying::poll() {
    if (question_)
        return;
    toggledSinceQuestion_ = false;
    question_ = tasks_.start(ask(weak_from_this(), player_));
}

Task<void> NowPlaying::ask(std::weak_ptr<NowPlaying> monitor, Player& player) {
    auto answer = co_await player.read();
    const bool cancelled = (co_await CurrentStopToken{}).stopRequested();
    const auto self = monitor.lock();
    if (!self || cancelled)
        co_return;
    self->question_.reset();
    if (auto* reading = std::get_if<Player::Snapshot>(&answer))
        self->apply(std::move(*reading));
    else if (std::holds_alternative<Player::NotRunning>(answer))
        self->playerQuit();
}

void NowPlaying::playerQuit() {
    if (!track.get())
        return;
    track.set(std::nullopt);
    setPlaying(false);
}

void NowPlaying::apply(Player::Snapshot reading) {
    if (!track.get() || track->value().id() != reading.track.id())
        track.set(std::move(reading.track));
    if (!toggledSinceQuestion_) // else the answer may predate the toggle
        setPlaying(reading.isPlaying);
    positionSec.set(reading.positionSec);
    lastSyncDate_ = clock_();
}

void NowPlaying::setPlaying(bool playing) {
    isPlaying.set(playing);
    if (ticker_)
        ticker_->setPaused(!playing);
}

void NowPlaying::tick() {
    const auto now = clock_();
    const std::chrono::duration<double> elapsed = now - lastSyncDate_;
    positionSec.set(positionSec.get() + elapsed.count());
    lastSyncDate_ = now;
}

} // namespace brellowind
