// SPDX-License-Identifier: MIT

#include "desktops/KdeInput.h"

namespace brellowind::test {

KdeInput::KdeInput(const Compositor& kwin)
    : process_(kwin.start(QStringLiteral(BRELLOWIND_DESKTOP_KDE_INPUT))) {
    awaitDone();
}

void KdeInput::act(const char* deed, double first, double second) {
    process_->writeLine(QStringLiteral("%1 %2 %3").arg(QLatin1String(deed)).arg(first).arg(second));
    awaitDone();
}

void KdeInput::awaitDone() {
    if (process_->readLine() != QLatin1String("done"))
        throw DesktopFailure(QStringLiteral("KWin takes no input"));
}

} // namespace brellowind::test
