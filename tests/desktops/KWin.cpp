// SPDX-License-Identifier: MIT

#include "desktops/KWin.h"

#include "desktops/KdeInput.h"
#include "desktops/KdeScreens.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QStandardPaths>
#include <fcntl.h>
#include <unistd.h>

namespace brellowind::test {
namespace {

const auto firstScreen = QStringLiteral("Virtual-0");
const auto spareScreen = QStringLiteral("Virtual-1");

QImage readPicture(int file, const QVariantMap& description) {
    const auto number = [&](const char* name) {
        return description.value(QLatin1String(name)).toInt();
    };
    QImage picture(number("width"), number("height"),
                   static_cast<QImage::Format>(number("format")));
    QFile pipe;
    pipe.open(file, QIODevice::ReadOnly, QFile::AutoCloseHandle);
    const QByteArray content = pipe.readAll();
    const auto stride = number("stride");
    if (picture.isNull() || stride < picture.width() * picture.depth() / 8 ||
        content.size() != qsizetype(stride) * picture.height())
        throw DesktopFailure(QStringLiteral("KWin sent no whole picture"));
    return QImage(reinterpret_cast<const uchar*>(content.constData()), picture.width(),
                  picture.height(), stride, picture.format())
        .copy();
}

} // namespace

KWin::KWin(const CompositorOptions& options) {
    requireProgram(QStringLiteral("kwin_wayland"), QStringLiteral("kwin-wayland"));
    requireProgram(QStringLiteral("Xwayland"), QStringLiteral("xwayland"));
    auto& session = mutableSession();
    session.setVariable(QStringLiteral("KWIN_COMPOSE"), QStringLiteral("O2"));
    session.setVariable(QStringLiteral("LIBGL_ALWAYS_SOFTWARE"), QStringLiteral("1"));
    session.setVariable(QStringLiteral("KWIN_WAYLAND_NO_PERMISSION_CHECKS"), QStringLiteral("1"));
    session.setVariable(QStringLiteral("KWIN_SCREENSHOT_NO_PERMISSION_CHECKS"),
                        QStringLiteral("1"));
    session.writeFile(QStringLiteral(".config/kdeglobals"), "[KDE]\nAnimationDurationFactor=0\n");
    session.writeFile(QStringLiteral(".config/kwinrc"), // nothing waits in the corners
                      "[Plugins]\noverviewEnabled=false\nwindowviewEnabled=false\n");
    // A copy has no capabilities, which not every system lets an ordinary user's program have.
    const QString program = session.file(QStringLiteral("kwin_wayland"));
    QFile::copy(QStandardPaths::findExecutable(QStringLiteral("kwin_wayland")), program);
    QStringList arguments{QStringLiteral("--virtual"),
                          QStringLiteral("--no-lockscreen"),
                          QStringLiteral("--no-global-shortcuts"),
                          QStringLiteral("--output-count"),
                          QStringLiteral("2"),
                          QStringLiteral("--width"),
                          QString::number(options.size.width()),
                          QStringLiteral("--height"),
                          QString::number(options.size.height()),
                          QStringLiteral("--scale"),
                          QString::number(options.scale),
                          displayTellerCommand()};
    if (options.xWayland)
        arguments.prepend(QStringLiteral("--xwayland"));
    launch(program, arguments);
    awaitDisplays();
    setEnabled(spareScreen, false);
    input_ = std::make_unique<KdeInput>(*this);
    awaitDevices();
}

KWin::~KWin() {
    input_.reset();
    end();
}

QImage KWin::screenshot(const QString& screen) const {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        throw DesktopFailure(QStringLiteral("no pipe for a picture"));
    auto message = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.KWin"), QStringLiteral("/org/kde/KWin/ScreenShot2"),
        QStringLiteral("org.kde.KWin.ScreenShot2"), QStringLiteral("CaptureScreen"));
    message.setArguments({screen.isEmpty() ? firstScreen : screen,
                          QVariantMap{{QStringLiteral("native-resolution"), true}},
                          QVariant::fromValue(QDBusUnixFileDescriptor(ends[1]))});
    ::close(ends[1]); // the message has a copy
    const auto reply = session().bus().call(message);
    message.setArguments({});
    if (reply.type() != QDBusMessage::ReplyMessage) {
        ::close(ends[0]);
        throw DesktopFailure(reply.errorMessage());
    }
    return readPicture(ends[0], qdbus_cast<QVariantMap>(reply.arguments().value(0)));
}

void KWin::movePointerTo(QPointF place) {
    input_->movePointerTo(place);
}

void KWin::movePointerBy(QPointF distance) {
    input_->movePointerBy(distance);
}

void KWin::button(int code, Stroke stroke) {
    input_->button(code, stroke);
}

void KWin::key(int code, Stroke stroke) {
    input_->key(code, stroke);
}

bool KWin::tap(QPointF place) {
    input_->tap(place);
    return true;
}

QList<CompositorScreen> KWin::screens() const {
    QList<CompositorScreen> screens;
    const KdeScreens now(socket());
    for (const auto& screen : now.all())
        if (screen.isEnabled)
            screens.append(
                {screen.name, {screen.position, (QSizeF(screen.pixels) / screen.scale).toSize()}});
    return screens;
}

void KWin::setScale(double scale) {
    KdeScreens screens(socket());
    screens.setScale(screens.all().front(), scale);
}

QString KWin::addScreen() {
    return setEnabled(spareScreen, true) ? spareScreen : QString();
}

bool KWin::removeScreen(const QString& name) {
    return setEnabled(name, false);
}

bool KWin::setEnabled(const QString& name, bool isEnabled) {
    KdeScreens screens(socket());
    for (const auto& screen : screens.all())
        if (screen.name == name && screen.isEnabled != isEnabled) {
            screens.setEnabled(screen, isEnabled);
            return true;
        }
    return false;
}

} // namespace brellowind::test
