#pragma once

#include "e2e/ShellFixture.h"

#include <QList>
#include <QStringList>

namespace brellowind::test {

/// A player, a service that would like to know more than it is told, and a person who does
/// everything once.
class Privacy : public ShellOnDesktop {
protected:
    /// In every text of what is played, and in nothing else.
    static const QString secret;

    Privacy();

    /// Four songs, two of which the service fails, a check that fails, the settings, a player that
    /// fails, and the end. For `launcher` see `ProgramSession`.
    void liveADay(const QStringList& launcher = {});

    QString loginEntry() const;

    QList<demo::Exchange> requests; ///< that the service has got

private:
    void play(int number);

    /// With a cookie for whoever takes one.
    void answer(const demo::Exchange& exchange) const;

    bool isAsked(const char* path) const;
};

} // namespace brellowind::test
