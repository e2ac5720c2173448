// SPDX-License-Identifier: MIT

#pragma once

#include "loopback/LoopbackServer.h"
#include "support/Chance.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

namespace brellowind::test {

/// A service for lyrics, covers and the release feed that fails at random in various ways. The
/// lyrics of a track have a line for each quarter of a second of its first minute.
class FaultyService : public QObject {
    Q_OBJECT

public:
    explicit FaultyService(Chance& chance);

    void answer(const demo::Exchange& exchange);

    /// The text of a track's line at a position.
    static QString line(const QString& title, double seconds);

    bool failsNow = true; ///< whether it may fail
    int lyrics = 0;       ///< well answered
    int covers = 0;       ///< well answered
    int feeds = 0;        ///< well answered
    int faults = 0;

private:
    void fail(const demo::Exchange& exchange);
    QByteArray lyricsOf(const QString& title) const;

    Chance& chance_;
    QList<QByteArray> covers_; ///< PNG, of several sizes
};

} // namespace brellowind::test
