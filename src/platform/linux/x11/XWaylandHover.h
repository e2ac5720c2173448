// SPDX-License-Identifier: MIT

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

/// Reports the pointer over an overlay's window under XWayland to a `WindowPointer`.
///
/// Hover begins with the first motion: enter events are not reliable, since XWayland also sends
/// them to a new window at the last known position. It ends with a leave event, which XWayland does
/// not send if an absolute device, such as that of a virtual machine, moved the pointer. Therefore
/// the compositor's idle time is polled during hover: if the last user activity was not an event
/// here, hover ends until the next motion. Without an idle monitor hover ends after some seconds
/// without events.
class XWaylandHover final : public QObject {
public:
    /// All references must outlive this object.
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
    Time lastHere_;                       ///< time of the last pointer event
    std::unique_ptr<Timer> nextQuestion_; ///< during hover
    std::optional<BusCall> question_;
};

} // namespace brellowind::platform
