// SPDX-License-Identifier: MIT

#include "companion/Companion.h"

#include <csignal>
#include <sys/prctl.h>

namespace brellowind::demo {
namespace {

constexpr int patienceMs = 10000;

} // namespace

Companion::Companion(const QString& program, const QStringList& arguments,
                     const QProcessEnvironment& environment, const QString& errorFile) {
    if (errorFile.isEmpty())
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    else
        process_.setStandardErrorFile(errorFile, QIODevice::Append);
    process_.setProcessEnvironment(environment);
    process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process_.start(program, arguments);
}

Companion::~Companion() {
    end();
}

QString Companion::readLine() {
    while (!process_.canReadLine())
        if (!process_.waitForReadyRead(patienceMs))
            return {};
    return QString::fromUtf8(process_.readLine()).trimmed();
}

int Companion::finish() {
    if (!process_.waitForFinished(patienceMs) && isRunning())
        return -1;
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

int Companion::end() {
    process_.waitForStarted(patienceMs);
    process_.terminate();
    if (process_.waitForFinished(patienceMs) || !isRunning())
        return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    process_.kill();
    process_.waitForFinished(patienceMs);
    return -1;
}

} // namespace brellowind::demo
