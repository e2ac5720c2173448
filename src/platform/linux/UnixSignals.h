#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace brellowind::platform {

/// Turns SIGINT, SIGTERM and SIGHUP, with which a terminal or a session ends its programs, into a
/// call on the main thread. One at a time per process.
class UnixSignals {
public:
    explicit UnixSignals(std::function<void()> onTermination);
    UnixSignals(const UnixSignals&) = delete;
    UnixSignals& operator=(const UnixSignals&) = delete;
    ~UnixSignals();

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace brellowind::platform
