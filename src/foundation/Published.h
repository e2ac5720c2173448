// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Observers.h"

#include <utility>

namespace brellowind {

/// A property that everyone may read and observe but only `Writer` may assign.
///
/// Every assignment, also of an equal value, notifies the observers just before it takes effect:
/// during the notification `get()` still returns the old value.
template <typename Value, typename Writer>
class Published {
public:
    explicit Published(Value initial) : value_(std::move(initial)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    const Value& get() const { return value_; }
    const Value& operator*() const { return value_; }
    const Value* operator->() const { return &value_; }

    /// Calls `callback` before every assignment until the subscription ends.
    Subscription observe(Observers::Callback callback) const {
        return observers_->add(std::move(callback));
    }

private:
    friend Writer;

    void set(Value next) {
        observers_->notify();
        value_ = std::move(next);
    }

    Value value_;
    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
};

} // namespace brellowind
