#pragma once

#include "session/Desktop.h"

#include <QRect>
#include <QStringList>

namespace brellowind::test {

/// The monitors that the screen of an X server is divided into, as a user arranges them.
class Monitors {
public:
    explicit Monitors(const Desktop& desktop) : desktop_(desktop) {}

    /// Adds a monitor at a part of the screen. The screen's one output belongs to `withOutput`.
    void add(const QString& name, QRect part, bool withOutput);

    /// Takes a monitor away.
    void remove(const QString& name);

private:
    void arrange(const QStringList& arguments);

    const Desktop& desktop_;
};

} // namespace brellowind::test
