// SPDX-License-Identifier: MIT

#pragma once

#include "session/LoopWatch.h"

#include <QObject>

namespace brellowind::test {

/// A D-Bus object that reports the longest turns of the program's main loop.
class LoopObserver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brellowind.Loop")

public:
    /// Returns false if there is no bus.
    bool listen();

public Q_SLOTS:
    /// The longest turn since the last call, in microseconds of CPU time.
    Q_SCRIPTABLE qlonglong LongestTurn();

private:
    LoopWatch watch_;
};

} // namespace brellowind::test
