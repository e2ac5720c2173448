// SPDX-License-Identifier: MIT

#include "platform/TaskRunner.h"

#include <coroutine>
#include <utility>

namespace brellowind {

/// The outermost coroutine of a started task. Destroys itself when the task has finished.
struct TaskRunner::Frame {
    struct promise_type {
        Frame get_return_object() {
            return {std::coroutine_handle<promise_type>::from_promise(*this)};
        }
        std::suspend_always initial_suspend() const noexcept { return {}; }
        std::suspend_never final_suspend() const noexcept { return {}; }
        void return_void() const noexcept {}
        [[noreturn]] void unhandled_exception() const noexcept { std::terminate(); }

        StopToken stopToken;
    };

    std::coroutine_handle<promise_type> handle;
};

struct TaskRunner::Root {
    std::coroutine_handle<Frame::promise_type> frame;
    std::unique_ptr<platform::Timer> start;
};

TaskRunner::TaskRunner(platform::MainLoop& mainLoop) : mainLoop_(mainLoop) {}

TaskRunner::~TaskRunner() {
    for (const auto& root : std::exchange(roots_, {}))
        root->frame.destroy();
}

TaskHandle TaskRunner::start(Task<void> task) {
    StopSource source;
    const auto position = roots_.insert(roots_.end(), std::make_unique<Root>());
    const auto frame = run(std::move(task), position).handle;
    frame.promise().stopToken = source.token();
    (*position)->frame = frame;
    (*position)->start =
        mainLoop_.scheduleOnce(std::chrono::milliseconds(0), [frame] { frame.resume(); });
    return TaskHandle(std::move(source));
}

TaskRunner::Frame TaskRunner::run(Task<void> task, Position position) {
    co_await std::move(task);
    roots_.erase(position);
}

} // namespace brellowind
