// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/Compositor.h"

namespace brellowind::test {

/// Simulated pointer, keyboard and touch screen for KWin.
class KdeInput {
public:
    explicit KdeInput(const Compositor& kwin);

    void movePointerTo(QPointF place) { act("move", place.x(), place.y()); }
    void movePointerBy(QPointF distance) { act("move-by", distance.x(), distance.y()); }
    void button(int code, Stroke stroke) { act("button", code, stroke == Stroke::down); }
    void key(int code, Stroke stroke) { act("key", code, stroke == Stroke::down); }
    void tap(QPointF place) { act("tap", place.x(), place.y()); }

private:
    /// As in clients/kde-input.cpp.
    void act(const char* deed, double first, double second);
    void awaitDone();

    std::unique_ptr<demo::Companion> process_;
};

} // namespace brellowind::test
