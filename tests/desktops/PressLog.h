#pragma once

#include "desktops/Compositor.h"

#include <QColor>
#include <QPointF>
#include <QSize>
#include <QStringList>

namespace brellowind::test {

/// Another program on a compositor, of one colour, and what was done to it.
class PressLog {
public:
    struct Press {
        QPointF place; ///< in points of its surface
        int button;    ///< as in linux/input-event-codes.h
    };

    /// A window that covers the screen, or all of it that panels leave. Shown once this returns.
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

    /// The next press, which is waited for. Fails the running test when none comes.
    Press awaitPress();

    /// Waits for a line, as in clients/InputLog.h, that has come since the last of these calls and
    /// drops what came before it. False when it does not come.
    bool awaitLine(const QString& line);

    /// Whether keys come to it.
    bool hasKeyboard();

    /// All lines of clients/InputLog.h and clients/PlainSurface.h that have come so far.
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
