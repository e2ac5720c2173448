// SPDX-License-Identifier: MIT

#include "desktops/MutterPicture.h"

#include "desktops/MutterCall.h"
#include "session/EventLoop.h"

namespace brellowind::test {
namespace {

const auto screenCast = QStringLiteral("ScreenCast");
const auto castSession = QStringLiteral("ScreenCast.Session");

} // namespace

QImage MutterPicture::take(const UserSession& session, const QString& screen) {
    const auto cast =
        callMutter(session, mutterObject(screenCast), screenCast, "CreateSession", {QVariantMap()})
            .toString();
    const auto stream =
        callMutter(session, cast, castSession, "RecordMonitor", {screen, QVariantMap()}).toString();
    MutterPicture picture;
    session.bus().connect(QStringLiteral("org.gnome.Mutter.ScreenCast"), stream,
                          QStringLiteral("org.gnome.Mutter.ScreenCast.Stream"),
                          QStringLiteral("PipeWireStreamAdded"), &picture, SLOT(setNode(uint)));
    callMutter(session, cast, castSession, "Start");
    if (!waitUntil([&] { return picture.node_ != 0; }))
        throw DesktopFailure(QStringLiteral("mutter does not record its screen"));
    const auto file =
        session.run(QStringLiteral("gst-launch-1.0"),
                    {QStringLiteral("-q"), QStringLiteral("pipewiresrc"),
                     QStringLiteral("path=%1").arg(picture.node_), QStringLiteral("num-buffers=1"),
                     QStringLiteral("!"), QStringLiteral("videoconvert"), QStringLiteral("!"),
                     QStringLiteral("pngenc"), QStringLiteral("compression-level=1"),
                     QStringLiteral("!"), QStringLiteral("fdsink")});
    callMutter(session, cast, castSession, "Stop");
    return QImage::fromData(file);
}

} // namespace brellowind::test
