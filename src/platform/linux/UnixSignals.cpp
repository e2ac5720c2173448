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

/// Where the listener reads, and where the handler writes a byte.
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
    if (::pipe2(pipeEnds.data(), O_CLOEXEC) != 0)
        return; // the signals keep their meaning: they end the program at once
    ::fcntl(pipeEnds[1], F_SETFL, O_NONBLOCK);
    listener_ = std::thread([this, handler = std::move(onTermination)] {
        std::array<char, 16> signals{};
        while (::read(pipeEnds[0], signals.data(), signals.size()) > 0)
            QMetaObject::invokeMethod(&mainThread_, handler);
    });
    handleSignals(tell);
}

UnixSignals::~UnixSignals() {
    if (!listener_.joinable())
        return;
    handleSignals(SIG_DFL);
    ::close(std::exchange(pipeEnds[1], -1)); // the listener's input has ended
    listener_.join();
    ::close(std::exchange(pipeEnds[0], -1));
}

} // namespace brellowind::platform
