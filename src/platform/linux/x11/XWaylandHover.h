#pragma once

#include "platform/MainLoop.h"
#include "platform/linux/BusCall.h"
#include "platform/qt/WindowPointer.h"

#include <QDBusConnection>
#include <QObject>
#include <QWindow>
#include <chrono>
#include <memory>
#include <optional>

namespace brellowind::platform {

/// Tells a `WindowPointer` of the pointer over an overlay's window under XWayland.
///
/// The pointer is there from its first motion: when a window is shown where the pointer was last
/// known, XWayland tells that it has entered though it may be anywhere by now. It is there until it
/// leaves, which XWayland does not tell when an absolute device moved it, such as a virtual
/// machine's. So while the pointer is there the compositor is asked now and then how long nobody
/// did anything: if the last deed did not come here, the pointer is taken to be elsewhere. It comes
/// back with its next motion, after typing for instance. A compositor that cannot be asked is not
/// needed: the pointer is gone when nothing has come for some seconds.
class XWaylandHover final : public QObject {
public:
    /// All three references outlive this.
    XWaylandHover(QWindow& window, WindowPointer& pointer, MainLoop& mainLoop,
                  const QDBusConnection& sessionBus);
    ~XWaylandHover() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Time = std::chrono::steady_clock::time_point;

    void move(const QSinglePointEvent& event);
    void leave();
    void askIdleTime();
    void handleIdleTime(Time asked, const QDBusMessage& reply);

    QWindow& window_;
    WindowPointer& pointer_;
    MainLoop& mainLoop_;
    QDBusConnection sessionBus_;
    Time lastHere_;                       ///< when an event of the pointer came last
    std::unique_ptr<Timer> nextQuestion_; ///< while the pointer is over the window
    std::optional<BusCall> question_;
};

} // namespace brellowind::platform
