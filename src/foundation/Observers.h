// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace brellowind {

/// Keeps one observer registered until it is destroyed. It may outlive the observed object.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;

    /// `registration` unregisters the observer when it is destroyed.
    explicit Subscription(std::shared_ptr<const void> registration)
        : registration_(std::move(registration)) {}
    Subscription(Subscription&&) noexcept = default;
    Subscription& operator=(Subscription&&) noexcept = default;

    /// Unregisters the observer. Does nothing if it is not registered.
    void cancel() { registration_.reset(); }

private:
    std::shared_ptr<const void> registration_;
};

/// An ordered list of callbacks, which their subscriptions own. An observer that is removed during
/// a notification is not called any more; one that is added is first called by the next
/// notification. Notifying does not allocate memory. Must be owned by a std::shared_ptr.
class Observers : public std::enable_shared_from_this<Observers> {
public:
    using Callback = std::function<void()>;

    Subscription add(Callback callback) {
        prune();
        auto added = std::make_shared<const Callback>(std::move(callback));
        callbacks_.push_back(added);
        return Subscription(std::move(added));
    }

    void notify() {
        const auto self = shared_from_this(); // an observer may destroy the owner
        const auto count = callbacks_.size();
        ++notifying_;
        for (std::size_t i = 0; i < count; ++i) {
            if (const auto callback = callbacks_[i].lock())
                (*callback)();
        }
        --notifying_;
        prune();
    }

private:
    /// Forgets removed callbacks, except during a notification, which counts them.
    void prune() {
        if (notifying_ == 0)
            std::erase_if(callbacks_, [](const auto& callback) { return callback.expired(); });
    }

    std::vector<std::weak_ptr<const Callback>> callbacks_;
    int notifying_ = 0;
};

} // namespace brellowind
