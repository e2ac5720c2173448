#pragma once

#include "session/LoopWatch.h"

#include <QObject>

namespace brellowind::test {

/// Tells on the session bus how long the program's main loop has been kept busy.
class LoopObserver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brellowind.Loop")

public:
    /// False when there is no bus.
    bool listen();

public Q_SLOTS:
    /// The longest turn in microseconds of processor time since this was last asked.
    Q_SCRIPTABLE qlonglong LongestTurn();

private:
    LoopWatch watch_;
};

} // namespace brellowind::test
