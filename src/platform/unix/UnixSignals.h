// SPDX-License-Identifier: MIT

#pragma once

#include <QSocketNotifier>
#include <functional>
#include <optional>
#include <vector>

namespace brellowind::platform {

/// Converts SIGINT, SIGTERM and SIGHUP to calls on the main thread. A signal that is ignored at
/// construction stays ignored, as `nohup` and shells expect. At most one instance per process.
class UnixSignals {
public:
    explicit UnixSignals(std::function<void()> onTermination);
    UnixSignals(const UnixSignals&) = delete;
    UnixSignals& operator=(const UnixSignals&) = delete;
    ~UnixSignals();

private:
    std::vector<int> handled_;
    int readEnd_ = -1; ///< of the pipe that the handler writes to
    std::optional<QSocketNotifier> notifier_;
};

} // namespace brellowind::platform
