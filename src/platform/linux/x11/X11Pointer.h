// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Observers.h"
#include "platform/MainLoop.h"
#include "platform/Pointer.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11PointerUse.h"

#include <QObject>
#include <memory>

namespace brellowind::platform {

/// The pointer of an X server. Receives all movements, also during grabs of other clients, as
/// XInput 2.1 raw events, without polling. Also notices when another program warps the pointer.
/// Movements before the next turn of the main loop are coalesced.
class X11Pointer final : public QObject, public Pointer {
public:
    explicit X11Pointer(MainLoop& mainLoop);
    ~X11Pointer() override;

    std::optional<Point> location() override;
    bool isButtonHeld() override;
    Subscription addMonitor(Handler handler) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool handle(const xcb_generic_event_t& event);
    void handleUse();
    void requestMovement();
    void notifyMonitors();
    X11Answer<xcb_query_pointer_reply_t> query() const;

    X11Connection x11_;
    int xinput_ = -1; ///< the extension's opcode; -1 if missing or too old
    bool moved_ = false;
    std::optional<std::pair<int, int>> told_; ///< the last location, in pixels of the root window
    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
    std::unique_ptr<NextTurn> nextTurn_;
    X11EventObserver observer_;
    X11PointerUse use_;
};

} // namespace brellowind::platform
