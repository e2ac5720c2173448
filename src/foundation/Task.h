// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/StopToken.h"

#include <coroutine>
#include <exception>
#include <optional>
#include <utility>

namespace brellowind {

template <typename Result>
class Task;

namespace detail {

/// What every task's frame carries: who waits for it, and the token that tells of its cancellation.
struct TaskPromiseBase {
    struct FinalAwaiter {
        bool await_ready() const noexcept { return false; }
        template <typename Promise>
        std::coroutine_handle<> await_suspend(std::coroutine_handle<Promise> finished) noexcept {
            return finished.promise().continuation;
        }
        void await_resume() const noexcept {}
    };

    std::suspend_always initial_suspend() const noexcept { return {}; }
    FinalAwaiter final_suspend() const noexcept { return {}; }
    [[noreturn]] void unhandled_exception() const noexcept { std::terminate(); }

    std::coroutine_handle<> continuation = std::noop_coroutine();
    StopToken stopToken;
};

template <typename Result>
struct TaskPromise : TaskPromiseBase {
    Task<Result> get_return_object();
    void return_value(Result value) { result.emplace(std::move(value)); }
    Result takeResult() { return std::move(*result); }

    std::optional<Result> result;
};

template <>
struct TaskPromise<void> : TaskPromiseBase {
    Task<void> get_return_object();
    void return_void() const noexcept {}
    void takeResult() const noexcept {}
};

} // namespace detail

/// Main-thread work that may suspend. It runs once it is awaited by another task, whose stop token
/// it inherits, or started by a `TaskRunner`. Destroying a suspended task destroys what it waits
/// for. An exception that leaves a task ends the program.
template <typename Result = void>
class [[nodiscard]] Task {
public:
    using promise_type = detail::TaskPromise<Result>;
    using Handle = std::coroutine_handle<promise_type>;

    explicit Task(Handle handle) : handle_(handle) {}
    Task(Task&& other) noexcept : handle_(std::exchange(other.handle_, {})) {}
    Task& operator=(Task&&) = delete;
    ~Task() {
        if (handle_)
            handle_.destroy();
    }

    struct Awaiter {
        bool await_ready() const noexcept { return false; }
        template <typename Promise>
        std::coroutine_handle<> await_suspend(std::coroutine_handle<Promise> awaiting) noexcept {
            child.promise().continuation = awaiting;
            child.promise().stopToken = awaiting.promise().stopToken;
            return child;
        }
        Result await_resume() { return child.promise().takeResult(); }

        Handle child;
    };

    Awaiter operator co_await() && noexcept { return {handle_}; }

private:
    Handle handle_;
};

template <typename Result>
Task<Result> detail::TaskPromise<Result>::get_return_object() {
    return Task<Result>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

inline Task<void> detail::TaskPromise<void>::get_return_object() {
    return Task<void>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

/// `co_await CurrentStopToken{}` gives the stop token of the running task, without suspending it.
struct CurrentStopToken {
    bool await_ready() const noexcept { return false; }
    template <typename Promise>
    bool await_suspend(std::coroutine_handle<Promise> running) noexcept {
        token = running.promise().stopToken;
        return false;
    }
    StopToken await_resume() noexcept { return std::move(token); }

    StopToken token;
};

} // namespace brellowind
