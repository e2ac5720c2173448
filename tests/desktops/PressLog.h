// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/Compositor.h"

#include <QColor>
#include <QPointF>
#include <QSize>
#include <QStringList>

namespace brellowind::test {

/// A client of one colour in a separate process, and a log of its input events.
class PressLog {
public:
    struct Press {
        QPointF place; ///< in points of its surface
        int button;    ///< as in linux/input-event-codes.h
    };

    /// A full-screen or maximized window. Shown when this returns.
    static PressLog fullScreen(const Compositor& compositor, QColor colour);
    static PressLog maximized(const Compositor& compositor, QColor colour);

    /// A layer surface in the top layer, panelHeight points high at the top edge, that windows
    /// leave free. Only for compositors with a layer shell. Shown once this returns.
    static PressLog panel(const Compositor& compositor, QColor colour);

    static constexpr int panelHeight = 32;

    bool isRunning() const { return process_->isRunning(); }

    /// Its size in points when it was last shown anew.
    QSize size();

    /// The presses of the pointer since the last call.
    QList<Press> takePresses();

    /// Waits for the next press. Fails the test after a timeout.
    Press awaitPress();

    /// Waits for a line of clients/InputLog.h since the last call and skips the lines before it.
    /// Returns false after a timeout.
    bool awaitLine(const QString& line);

    /// Whether it receives keys.
    bool hasKeyboard();

    /// All lines of clients/InputLog.h and clients/PlainSurface.h so far.
    const QStringList& lines();

private:
    static PressLog window(const Compositor& compositor, const QString& kind, QColor colour);

    PressLog(const Compositor& compositor, const char* program, const QStringList& arguments);

    std::unique_ptr<demo::Companion> process_;
    QByteArray unfinished_;
    QStringList lines_;
    qsizetype taken_ = 0;   ///< lines that takePresses() and awaitPress() have seen
    qsizetype awaited_ = 0; ///< lines that awaitLine() has seen
};

} // namespace brellowind::test
