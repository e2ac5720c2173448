// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace brellowind {

class Observers;

/// Keeps one observer registered until it is destroyed. It may outlive the observed object.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    Subscription(Subscription&&) noexcept = default;
    Subscription& operator=(Subscription&& other) noexcept;
    ~Subscription();

    /// Unregisters the observer. Does nothing if it is not registered.
    void cancel();

private:
    friend class Observers;
    Subscription(std::weak_ptr<Observers> observers, std::uint64_t id);

    std::weak_ptr<Observers> observers_;
    std::uint64_t id_ = 0;
};

/// An ordered list of callbacks. An observer that is removed during a notification is not called
/// any more; one that is added is first called by the next notification. Notifying does not
/// allocate memory.
class Observers : public std::enable_shared_from_this<Observers> {
public:
    using Callback = std::function<void()>;

    Subscription add(Callback callback);
    void notify();

private:
    friend class Subscription;

    struct Entry {
        std::uint64_t id;
        std::unique_ptr<Callback> callback; ///< null once removed
    };

    void remove(std::uint64_t id);

    std::vector<Entry> entries_;
    std::vector<std::unique_ptr<Callback>> removed_; ///< freed after the notification
    std::uint64_t lastId_ = 0;
    int notifying_ = 0;
};

} // namespace brellowind
