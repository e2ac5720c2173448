#include "Companion.h"

#include <csignal>
#include <sys/prctl.h>

namespace brellowind::demo {
namespace {

constexpr int patienceMs = 5000;

} // namespace

Companion::Companion(const QString& program, const QStringList& arguments) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process_.start(program, arguments);
}

Companion::~Companion() {
    process_.terminate();
    if (!process_.waitForFinished(patienceMs))
        process_.kill();
    process_.waitForFinished(patienceMs);
}

QString Companion::firstLine() {
    while (!process_.canReadLine())
        if (!process_.waitForReadyRead(patienceMs))
            return {};
    return QString::fromUtf8(process_.readLine()).trimmed();
}

} // namespace brellowind::demo
