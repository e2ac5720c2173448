#include "playback/NowPlaying.h"

#include "platform/Services.h"
#include "platform/Sleep.h"
#include "playback/SpotifyBridge.h"

#include <utility>

namespace brellowind {

using platform::services;

std::shared_ptr<NowPlaying> NowPlaying::create() {
    return std::shared_ptr<NowPlaying>(new NowPlaying);
}

NowPlaying::NowPlaying() : lastSyncDate_(services().clock.now()) {}

void NowPlaying::start() {
    stop();
    poll();
    auto& mainLoop = services().mainLoop;
    // Weak, so that timers keep no monitor alive; locked, so that an observer may release it.
    timer_ = mainLoop.scheduleRepeating(pollInterval, [weakSelf = weak_from_this()] {
        if (const auto self = weakSelf.lock())
            self->poll();
    });
    ticker_ = mainLoop.scheduleRepeating(tickInterval, [weakSelf = weak_from_this()] {
        if (const auto self = weakSelf.lock())
            self->tick();
    });
    ticker_->setPaused(!isPlaying.get());
}

void NowPlaying::stop() {
    timer_.reset();
    ticker_.reset();
}

void NowPlaying::togglePlayPause() {
    setPlaying(!isPlaying.get());
    SpotifyBridge::playPause();
    services().tasks.start(confirmToggle(shared_from_this()));
}

Task<void> NowPlaying::confirmToggle(std::shared_ptr<NowPlaying> self) {
    co_await platform::sleep(confirmationDelay);
    self->poll();
}

void NowPlaying::poll() {
    if (!SpotifyBridge::isRunning()) {
        if (track.get()) {
            track.set(std::nullopt);
            setPlaying(false);
        }
        return;
    }
    auto reading = SpotifyBridge::snapshot();
    if (!reading)
        return;
    if (!track.get() || track->value().id() != reading->track.id())
        track.set(std::move(reading->track));
    setPlaying(reading->isPlaying);
    positionSec.set(reading->positionSec);
    lastSyncDate_ = services().clock.now();
}

void NowPlaying::setPlaying(bool playing) {
    isPlaying.set(playing);
    if (ticker_)
        ticker_->setPaused(!playing);
}

void NowPlaying::tick() {
    const auto now = services().clock.now();
    const std::chrono::duration<double> elapsed = now - lastSyncDate_;
    positionSec.set(positionSec.get() + elapsed.count());
    lastSyncDate_ = now;
}

} // namespace brellowind
