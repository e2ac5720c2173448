// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Task.h"
#include "platform/MainLoop.h"

#include <list>
#include <memory>
#include <utility>

namespace brellowind {

/// Cancels a started task. Destroying the handle does not affect the task.
class TaskHandle {
public:
    explicit TaskHandle(StopSource source) : source_(std::move(source)) {}

    void cancel() { source_.requestStop(); }

private:
    StopSource source_;
};

/// Runs tasks on the main thread. Destroying it destroys all suspended tasks.
class TaskRunner {
public:
    explicit TaskRunner(platform::MainLoop& mainLoop);
    TaskRunner(const TaskRunner&) = delete;
    TaskRunner& operator=(const TaskRunner&) = delete;
    ~TaskRunner();

    /// Starts `task` on the next turn of the main loop.
    TaskHandle start(Task<void> task);

    /// The number of unfinished tasks.
    std::size_t running() const { return roots_.size(); }

private:
    struct Root;
    struct Frame;
    using Position = std::list<std::unique_ptr<Root>>::iterator;

    Frame run(Task<void> task, Position position);

    platform::MainLoop& mainLoop_;
    std::list<std::unique_ptr<Root>> roots_;
};

} // namespace brellowind
