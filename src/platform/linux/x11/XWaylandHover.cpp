// SPDX-License-Identifier: MIT

#include "platform/linux/x11/XWaylandHover.h"

#include "platform/linux/screens/QtScreens.h"

#include <QMouseEvent>

namespace brellowind::platform {
namespace {

using namespace std::chrono_literals;

constexpr auto interval = 1000ms;
constexpr int timeoutMs = 2000;

/// The maximum delay of an event between the compositor and this program.
constexpr auto delay = 100ms;

/// The maximum hover time without events, if there is no idle monitor.
constexpr auto longestIdle = 3s;

const auto monitor = QStringLiteral("org.gnome.Mutter.IdleMonitor");
const auto monitorPath = QStringLiteral("/org/gnome/Mutter/IdleMonitor/Core");

} // namespace

XWaylandHover::XWaylandHover(QWindow& window, WindowPointer& pointer, MainLoop& mainLoop,
                             const QDBusConnection& sessionBus)
    : window_(window), pointer_(pointer), mainLoop_(mainLoop), sessionBus_(sessionBus) {
    window_.installEventFilter(this);
}

XWaylandHover::~XWaylandHover() {
    leave();
}

bool XWaylandHover::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseMove:
        move(static_cast<QSinglePointEvent&>(*event));
        [[fallthrough]];
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
        lastHere_ = std::chrono::steady_clock::now();
        break;
    case QEvent::Leave:
    case QEvent::Hide:
        leave();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void XWaylandHover::move(const QSinglePointEvent& event) {
    const QRect frame = window_.geometry();
    pointer_.moveWithin(
        ScreenArrangement::current().coordinates.desktopRect(
            {double(frame.x()), double(frame.y()), double(frame.width()), double(frame.height())}),
        event);
    if (pointer_.location() && !nextQuestion_ && !question_)
        nextQuestion_ = mainLoop_.scheduleOnce(interval, [this] { askIdleTime(); });
}

void XWaylandHover::leave() {
    nextQuestion_.reset();
    question_.reset();
    if (pointer_.location())
        pointer_.leave();
}

void XWaylandHover::askIdleTime() {
    nextQuestion_.reset();
    question_.emplace(sessionBus_, methodCall(monitor, monitorPath, monitor, "GetIdletime"),
                      timeoutMs,
                      [this, asked = std::chrono::steady_clock::now()](const QDBusMessage& reply) {
                          handleIdleTime(asked, reply);
                      });
}

void XWaylandHover::handleIdleTime(Time asked, const QDBusMessage& reply) {
    const auto sinceEvent = asked - lastHere_;
    const bool isKnown = reply.type() == QDBusMessage::ReplyMessage;
    const std::chrono::milliseconds idle(isKnown ? reply.arguments().value(0).toLongLong() : 0);
    const bool isElsewhere = isKnown ? sinceEvent > idle + delay : sinceEvent > longestIdle;
    question_.reset();
    if (isElsewhere)
        leave();
    else
        nextQuestion_ = mainLoop_.scheduleOnce(interval, [this] { askIdleTime(); });
}

} // namespace brellowind::platform
