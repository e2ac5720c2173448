#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace brellowind {

class Observers;

/// Keeps one observer registered for as long as it lives. It may outlive what it observes.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    Subscription(Subscription&&) noexcept = default;
    Subscription& operator=(Subscription&& other) noexcept;
    ~Subscription();

    /// Ends the observation; does nothing when it has ended already.
    void cancel();

private:
    friend class Observers;
    Subscription(std::weak_ptr<Observers> observers, std::uint64_t id);

    std::weak_ptr<Observers> observers_;
    std::uint64_t id_ = 0;
};

/// An ordered list of callbacks. During a notification observers may leave, and are not called any
/// more, or come, and are first called by the next one. A notification allocates nothing.
class Observers : public std::enable_shared_from_this<Observers> {
public:
    using Callback = std::function<void()>;

    Subscription add(Callback callback);
    void notify();

private:
    friend class Subscription;

    struct Entry {
        std::uint64_t id;
        std::unique_ptr<Callback> callback; ///< absent once the observer has left
    };

    void remove(std::uint64_t id);

    std::vector<Entry> entries_;
    std::vector<std::unique_ptr<Callback>> left_; ///< kept until no notification runs
    std::uint64_t lastId_ = 0;
    int notifying_ = 0;
};

} // namespace brellowind
