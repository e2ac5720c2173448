#include "platform/linux/UnixSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace brellowind::platform {
namespace {

constexpr std::array handledSignals{SIGINT, SIGTERM, SIGHUP};

/// Where the handler writes a byte, and where the main loop reads it.
std::array<int, 2> pipeEnds{-1, -1};

/// Only what is allowed in a signal handler.
void tell(int signal) {
    const int error = errno;
    const char byte = static_cast<char>(signal);
    if (::write(pipeEnds[1], &byte, 1) < 0) {
        // The pipe is full of earlier signals: the main loop will see those.
    }
    errno = error;
}

void handleSignals(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int signal : handledSignals)
        ::sigaction(signal, &action, nullptr);
}

} // namespace

UnixSignals::UnixSignals(std::function<void()> onTermination) {
    if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals keep their meaning: they end the program at once
    notifier_ = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated,
                     [handler = std::move(onTermination)] {
                         std::array<char, 16> bytes{};
                         while (::read(pipeEnds[0], bytes.data(), bytes.size()) > 0) {
                         }
                         handler();
                     });
    handleSignals(tell);
}

UnixSignals::~UnixSignals() {
    if (!notifier_)
        return;
    handleSignals(SIG_DFL);
    notifier_.reset();
    for (int& end : pipeEnds)
        ::close(std::exchange(end, -1));
}

} // namespace brellowind::platform
