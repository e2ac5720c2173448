// SPDX-License-Identifier: MIT

#include "desktops/MutterRemote.h"

#include "desktops/MutterCall.h"

namespace brellowind::test {
namespace {

const auto remoteDesktop = QStringLiteral("RemoteDesktop");
const auto remoteSession = QStringLiteral("RemoteDesktop.Session");
const auto screenCast = QStringLiteral("ScreenCast");
const auto castSession = QStringLiteral("ScreenCast.Session");

} // namespace

MutterRemote::MutterRemote(const UserSession& session)
    : session_(session),
      remote_(callMutter(session, mutterObject(remoteDesktop), remoteDesktop, "CreateSession")
                  .toString()) {
    const auto id = mutterProperty(session, remote_, remoteSession, "SessionId");
    cast_ = callMutter(session, mutterObject(screenCast), screenCast, "CreateSession",
                       {QVariantMap{{QStringLiteral("remote-desktop-session-id"), id}}})
                .toString();
    callMutter(session, remote_, remoteSession, "Start");
}

MutterRemote::~MutterRemote() {
    try {
        callMutter(session_, remote_, remoteSession, "Stop");
    } catch (const DesktopFailure&) { // mutter has exited or ended the session
    }
}

void MutterRemote::movePointerTo(const QString& screen, QPointF pixel) {
    act("NotifyPointerMotionAbsolute", {stream(screen), pixel.x(), pixel.y()});
}

void MutterRemote::movePointerBy(QPointF distance) {
    act("NotifyPointerMotionRelative", {distance.x(), distance.y()});
}

void MutterRemote::button(int code, Stroke stroke) {
    act("NotifyPointerButton", {code, stroke == Stroke::down});
}

void MutterRemote::key(int code, Stroke stroke) {
    act("NotifyKeyboardKeycode", {static_cast<uint>(code), stroke == Stroke::down});
}

QString MutterRemote::stream(const QString& screen) {
    QString& stream = streams_[screen];
    if (stream.isEmpty())
        stream = callMutter(session_, cast_, castSession, "RecordMonitor", {screen, QVariantMap()})
                     .toString();
    return stream;
}

void MutterRemote::act(const char* deed, const QVariantList& arguments) {
    callMutter(session_, remote_, remoteSession, deed, arguments);
}

} // namespace brellowind::test
