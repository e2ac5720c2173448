// SPDX-License-Identifier: MIT

#pragma once

#include "e2e/ShellFixture.h"

#include <QList>
#include <QStringList>

namespace brellowind::test {

/// A player, a service that sets cookies, and a simulated user who uses every feature once.
class Privacy : public ShellOnDesktop {
protected:
    /// A marker in all texts of the tracks, and nowhere else.
    static const QString secret;

    Privacy();

    /// Four songs, two of which the service fails, a check that fails, the settings, a player that
    /// fails, and the end. For `launcher` see `ProgramSession`.
    void liveADay(const QStringList& launcher = {});

    QString loginEntry() const;

    QList<demo::Exchange> requests; ///< that the service has got

private:
    void play(int number);

    /// An answer with a cookie.
    void answer(const demo::Exchange& exchange) const;

    bool isAsked(const char* path) const;
};

} // namespace brellowind::test
