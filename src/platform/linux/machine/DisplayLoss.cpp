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

/// Global since signal and message handlers can reach no object.
volatile std::sig_atomic_t displaySocket = -1;
std::atomic_flag isEnding;

/// Only what is allowed in a signal handler.
void endIfDisplayIsGone() {
    pollfd display{displaySocket, POLLRDHUP, 0}; // nothing happens to a socket of -1
    if (::poll(&display, 1, 0) <= 0)
        return;
    if (isEnding.test_and_set())
        ::pause(); // another thread of Qt's came here first
    constexpr std::string_view line = "brellowind: the display is gone\n";
    if (::write(STDERR_FILENO, line.data(), line.size()) < 0) {
        // Nobody listens.
    }
    ::_exit(1);
}

void handleFault(int signal) {
    endIfDisplayIsGone();
    std::signal(signal, SIG_DFL); // the instruction is repeated and ends the program
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
