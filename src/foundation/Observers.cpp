// SPDX-License-Identifier: MIT

#include "foundation/Observers.h"

#include <algorithm>
#include <utility>

namespace brellowind {

Subscription::Subscription(std::weak_ptr<Observers> observers, std::uint64_t id)
    : observers_(std::move(observers)), id_(id) {}

Subscription& Subscription::operator=(Subscription&& other) noexcept {
    if (this != &other) {
        cancel();
        observers_ = std::move(other.observers_);
        id_ = other.id_;
    }
    return *this;
}

Subscription::~Subscription() {
    cancel();
}

void Subscription::cancel() {
    if (const auto observers = observers_.lock())
        observers->remove(id_);
    observers_.reset();
}

Subscription Observers::add(Callback callback) {
    entries_.push_back({++lastId_, std::make_unique<Callback>(std::move(callback))});
    return {weak_from_this(), lastId_};
}

void Observers::notify() {
    const auto self = shared_from_this(); // an observer may destroy the owner
    const auto newest = lastId_;
    ++notifying_;
    for (std::size_t i = 0; i < entries_.size() && entries_[i].id <= newest; ++i) {
        if (const auto* callback = entries_[i].callback.get())
            (*callback)();
    }
    if (--notifying_ > 0 || removed_.empty())
        return;
    std::erase_if(entries_, [](const Entry& entry) { return !entry.callback; });
    removed_.clear();
}

void Observers::remove(std::uint64_t id) {
    const auto entry = std::ranges::find(entries_, id, &Entry::id);
    if (entry == entries_.end())
        return;
    if (notifying_ > 0)
        removed_.push_back(std::move(entry->callback)); // it may be running now
    else
        entries_.erase(entry);
}

} // namespace brellowind
