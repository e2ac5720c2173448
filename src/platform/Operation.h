// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/StopToken.h"
#include "platform/MainLoop.h"

#include <coroutine>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace brellowind::platform {

/// Awaits an asynchronous operation. `begin` starts it and returns its owner; destroying the owner
/// aborts it. The awaiting task resumes with the result. If the task is cancelled first, the
/// operation is aborted at once, and the task resumes with `cancelled` on the next turn of
/// `mainLoop`.
template <typename Owner, typename Result>
class Operation {
public:
    using Finish = std::function<void(Result)>;
    using Begin = std::function<std::unique_ptr<Owner>(Finish)>;

    Operation(MainLoop& mainLoop, Begin begin, Result cancelled)
        : mainLoop_(mainLoop), begin_(std::move(begin)), cancelled_(std::move(cancelled)) {}
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;

    bool await_ready() const noexcept { return false; }

    template <typename Promise>
    bool await_suspend(std::coroutine_handle<Promise> awaiting) {
        const StopToken& token = awaiting.promise().stopToken;
        if (token.stopRequested()) {
            result_ = std::move(cancelled_);
            return false;
        }
        awaiting_ = awaiting;
        owner_ = begin_([this](Result result) {
            onStop_.cancel();
            result_ = std::move(result);
            awaiting_.resume();
        });
        onStop_ = token.onStop([this] { abandon(); });
        return true;
    }

    Result await_resume() { return std::move(*result_); }

private:
    void abandon() {
        owner_.reset();
        result_ = std::move(cancelled_);
        resumption_ =
            mainLoop_.scheduleOnce(std::chrono::milliseconds(0), [this] { awaiting_.resume(); });
    }

    MainLoop& mainLoop_;
    Begin begin_;
    Result cancelled_;
    std::coroutine_handle<> awaiting_;
    std::optional<Result> result_;
    std::unique_ptr<Owner> owner_;
    std::unique_ptr<Timer> resumption_;
    Subscription onStop_;
};

} // namespace brellowind::platform
