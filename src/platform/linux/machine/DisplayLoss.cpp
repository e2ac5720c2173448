// SPDX-License-Identifier: MIT

#include "platform/linux/machine/DisplayLoss.h"

#include <QString>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <poll.h>
#include <string_view>
#include <unistd.h>

namespace brellowind::platform {
namespace {

/// Global, since signal and message handlers have no context.
volatile std::sig_atomic_t displaySocket = -1;
std::atomic_flag isEnding;

/// Async-signal-safe.
void endIfDisplayIsGone() {
    pollfd display{displaySocket, POLLRDHUP, 0}; // -1 is ignored
    if (::poll(&display, 1, 0) <= 0)
        return;
    if (isEnding.test_and_set())
        ::pause(); // another thread is ending the program
    constexpr std::string_view line = "brellowind: the display is gone\n";
    if (::write(STDERR_FILENO, line.data(), line.size()) < 0) {
        // Ignored: there is no reader.
    }
    ::_exit(1);
}

void handleFault(int signal) {
    endIfDisplayIsGone();
    std::signal(signal, SIG_DFL); // the faulting instruction is executed again
}

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    endIfDisplayIsGone();
    if (type == QtFatalMsg || qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, text)));
}

} // namespace

void silenceQt() {
    qInstallMessageHandler(handleMessage);
}

void endWithDisplay(int socket) {
    displaySocket = socket;
    std::signal(SIGSEGV, handleFault);
}

void ignoreDisplay() {
    displaySocket = -1;
}

} // namespace brellowind::platform
