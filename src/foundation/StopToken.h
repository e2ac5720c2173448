// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Observers.h"

#include <functional>
#include <memory>
#include <utility>

namespace brellowind {

namespace detail {

struct StopState : Observers {
    bool requested = false;
};

} // namespace detail

/// Tells whether the cancellation of a task has been requested. For one thread. A default token
/// belongs to no source and never stops.
class StopToken {
public:
    StopToken() = default;

    bool stopRequested() const { return state_ && state_->requested; }

    /// Calls `callback` when the stop is requested, at once if it has been already. Destroying the
    /// subscription ends that; it may be destroyed by a callback.
    Subscription onStop(std::function<void()> callback) const {
        if (!state_)
            return {};
        if (!state_->requested)
            return state_->add(std::move(callback));
        callback();
        return {};
    }

private:
    friend class StopSource;
    explicit StopToken(std::shared_ptr<detail::StopState> state) : state_(std::move(state)) {}

    std::shared_ptr<detail::StopState> state_;
};

/// Requests the stop that its tokens tell of.
class StopSource {
public:
    StopToken token() const { return StopToken(state_); }

    /// Does nothing the second time.
    void requestStop() {
        if (!std::exchange(state_->requested, true))
            state_->notify();
    }

private:
    std::shared_ptr<detail::StopState> state_ = std::make_shared<detail::StopState>();
};

} // namespace brellowind
