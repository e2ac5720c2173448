// SPDX-License-Identifier: MIT

#include "platform/unix/UnixSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace brellowind::platform {
namespace {

/// The pipe's write end. Global, since a signal handler has no context.
volatile std::sig_atomic_t writeEnd = -1;

/// Async-signal-safe.
void notify(int /*signal*/) {
    const int error = errno;
    const char byte = 0;
    if (::write(writeEnd, &byte, 1) < 0) {
        // The pipe is full: earlier signals are pending.
    }
    errno = error;
}

} // namespace

UnixSignals::UnixSignals(std::function<void()> onTermination) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        return; // the signals keep their default action
    for (const int end : ends) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    readEnd_ = ends[0];
    writeEnd = ends[1];
    notifier_.emplace(readEnd_, QSocketNotifier::Read);
    QObject::connect(&*notifier_, &QSocketNotifier::activated, &*notifier_,
                     [this, handler = std::move(onTermination)] {
                         std::array<char, 16> bytes{};
                         while (::read(readEnd_, bytes.data(), bytes.size()) > 0) {
                         }
                         handler();
                     });
    // On all supported systems the handler stays installed and interrupted calls are restarted.
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (std::signal(signal, notify) == SIG_IGN)
            std::signal(signal, SIG_IGN);
        else
            handled_.push_back(signal);
    }
}

UnixSignals::~UnixSignals() {
    for (const int signal : handled_)
        std::signal(signal, SIG_DFL);
    if (!notifier_)
        return;
    notifier_.reset();
    ::close(std::exchange(readEnd_, -1));
    ::close(writeEnd);
    writeEnd = -1;
}

} // namespace brellowind::platform
