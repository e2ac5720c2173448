#pragma once

#include <QObject>
#include <functional>
#include <thread>

namespace brellowind::platform {

/// Turns SIGINT, SIGTERM and SIGHUP, with which a terminal or a session ends its programs, into a
/// call on the main thread. One at a time per process.
///
/// A thread waits for them, so that the main loop has no file to look at on its every turn.
class UnixSignals {
public:
    explicit UnixSignals(std::function<void()> onTermination);
    UnixSignals(const UnixSignals&) = delete;
    UnixSignals& operator=(const UnixSignals&) = delete;
    ~UnixSignals();

private:
    QObject mainThread_; ///< calls that have not been made by its end are dropped
    std::thread listener_;
};

} // namespace brellowind::platform
