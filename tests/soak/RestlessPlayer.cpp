// SPDX-License-Identifier: MIT

#include "soak/RestlessPlayer.h"

#include <utility>

namespace brellowind::test {

RestlessPlayer::RestlessPlayer(QDBusConnection bus, QString origin, Chance& chance)
    : bus_(std::move(bus)), origin_(std::move(origin)), chance_(chance) {
    start();
}

void RestlessPlayer::act() {
    if (hangsUntil_) {
        if (hangsUntil_->hasExpired())
            recover();
        return;
    }
    if (!process_) {
        start();
        return;
    }
    const int what = chance_.below(100);
    if (what < 30) {
        playSong(QStringLiteral("Song %1").arg(tracks));
    } else if (what < 55) {
        ++seeks;
        process_->setPosition(chance_.below(70));
    } else if (what < 90) {
        ++pauses;
        process_->setStatus(
            chance_.oneOf<const char*>({"Playing", "Playing", "Paused", "Stopped"}));
    } else if (what < 95) {
        process_->setAnswer(
            chance_.oneOf<const char*>({"error", "text", "nothing", "truth", "truth", "truth"}));
    } else if (what < 97) {
        ++hangs;
        process_->hang();
        hangsUntil_.emplace(std::chrono::milliseconds(100 + chance_.below(3000)));
    } else {
        ++crashes;
        chance_.onceIn(2) ? process_->kill() : process_->quit();
        process_.reset();
    }
}

void RestlessPlayer::settle(const QString& title, const char* status, double seconds) {
    if (hangsUntil_)
        recover();
    if (!process_)
        start();
    process_->setAnswer("truth");
    playSong(title);
    process_->setStatus(status);
    process_->setPosition(seconds);
}

void RestlessPlayer::start() {
    process_.emplace(bus_);
    process_->setStatus("Playing");
}

void RestlessPlayer::recover() {
    process_->recover();
    hangsUntil_.reset();
}

void RestlessPlayer::playSong(const QString& title) {
    auto metadata =
        PlayerProcess::metadata(title, QStringLiteral("Artist"), QStringLiteral("Album"), 60000);
    ++tracks;
    if (!chance_.onceIn(8))
        metadata.insert(QStringLiteral("mpris:artUrl"),
                        origin_ + QStringLiteral("/cover/%1.png").arg(tracks));
    process_->setTrack(metadata);
}

} // namespace brellowind::test
