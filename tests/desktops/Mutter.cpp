// SPDX-License-Identifier: MIT

#include "desktops/Mutter.h"

#include "desktops/MutterPicture.h"
#include "desktops/MutterRemote.h"
#include "desktops/MutterScreens.h"
#include "session/EventLoop.h"

#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <cmath>

namespace brellowind::test {
namespace {

constexpr auto layoutInPoints =
    "[org/gnome/mutter]\nexperimental-features=['scale-monitor-framebuffer']\n";

QStringList headless(const CompositorOptions& options) {
    const QSize pixels = (QSizeF(options.size) * options.scale).toSize();
    QStringList arguments{QStringLiteral("--headless"), QStringLiteral("--wayland"),
                          QStringLiteral("--virtual-monitor"),
                          QStringLiteral("%1x%2").arg(pixels.width()).arg(pixels.height())};
    if (!options.xWayland)
        arguments += QStringLiteral("--no-x11");
    return arguments;
}

/// Whether GNOME Shell shows its overview, which it is asked to hide.
bool isHidingOverview(const QDBusConnection& bus) {
    QDBusInterface shell(QStringLiteral("org.gnome.Shell"), QStringLiteral("/org/gnome/Shell"),
                         QStringLiteral("org.gnome.Shell"), bus);
    const bool isActive = shell.property("OverviewActive").toBool();
    if (isActive)
        shell.setProperty("OverviewActive", false);
    return isActive;
}

} // namespace

Mutter::Mutter(Program program, const CompositorOptions& options)
    : isLayoutInPixels_(options.scale == std::round(options.scale)) {
    requireProgram(QStringLiteral("pipewire"), QStringLiteral("pipewire"));
    requireProgram(QStringLiteral("wireplumber"), QStringLiteral("wireplumber"));
    requireProgram(QStringLiteral("gst-launch-1.0"), QStringLiteral("gstreamer1.0-tools"));
    requireProgram(QStringLiteral("gdbus"), QStringLiteral("libglib2.0-bin"));
    if (options.xWayland)
        requireProgram(QStringLiteral("Xwayland"), QStringLiteral("xwayland"));
    auto& session = mutableSession();
    session.setVariable(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("keyfile"));
    session.writeFile(QStringLiteral(".config/glib-2.0/settings/keyfile"),
                      "[org/gnome/desktop/interface]\nenable-animations=false\n"
                      "[org/gnome/desktop/notifications]\nshow-banners=false\n" +
                          QByteArray(isLayoutInPixels_ ? "" : layoutInPoints));
    pipewire_ = session.start(QStringLiteral("pipewire"), {}, QStringLiteral("pipewire.log"));
    if (!waitUntil([&] { return QFile::exists(session.file(QStringLiteral("pipewire-0"))); }))
        throw DesktopFailure(QStringLiteral("pipewire did not start"));
    wireplumber_ = session.start(QStringLiteral("wireplumber"), {}, QStringLiteral("pipewire.log"));
    if (program == Program::gnomeShell)
        launchShell(options);
    else
        launchMutter(options);
    await("it was on the bus", [&] {
        const QStringList names = session.bus().interface()->registeredServiceNames();
        return names.contains(QStringLiteral("org.gnome.Mutter.DisplayConfig")) &&
               names.contains(QStringLiteral("org.gnome.Mutter.RemoteDesktop")) &&
               names.contains(QStringLiteral("org.gnome.Mutter.ScreenCast"));
    });
    if (options.scale != 1)
        setScale(options.scale);
    if (options.xWayland && isLayoutInPixels_)
        tellXClients(options.scale);
    remote_ = std::make_unique<MutterRemote>(this->session());
    wakeDevices();
    awaitDevices();
}

void Mutter::launchMutter(const CompositorOptions& options) {
    requireProgram(QStringLiteral("mutter"), QStringLiteral("mutter"));
    launch(QStringLiteral("mutter"),
           headless(options) + QStringList{QStringLiteral("--")} + displayTeller());
    awaitDisplays();
}

/// The shell needs a system bus, starts no program that could tell its displays, and begins with
/// the overview.
void Mutter::launchShell(const CompositorOptions& options) {
    requireProgram(QStringLiteral("gnome-shell"), QStringLiteral("gnome-shell"));
    auto& session = mutableSession();
    const QString address =
        QStringLiteral("unix:path=") + session.file(QStringLiteral("system-bus"));
    systemBus_ = session.start(
        QStringLiteral("dbus-daemon"),
        {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nosyslog"),
         QStringLiteral("--address=") + address, QStringLiteral("--print-address=1")});
    systemBus_->readLine();
    session.setVariable(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), address);
    launch(QStringLiteral("gnome-shell"), headless(options));
    session.setVariable(QStringLiteral("WAYLAND_DISPLAY"),
                        awaitOutput("Using Wayland display name '([^']+)'"));
    if (options.xWayland) {
        session.setVariable(QStringLiteral("DISPLAY"),
                            awaitOutput("Using public X11 display (:\\d+)"));
        const QStringList keys =
            QDir(session.folder())
                .entryList({QStringLiteral(".mutter-Xwaylandauth.*")}, QDir::Files | QDir::Hidden);
        session.setVariable(QStringLiteral("XAUTHORITY"), session.file(keys.value(0)));
    }
    await("it had its overview", [&] { return isHidingOverview(session.bus()); });
    await("it had hidden its overview", [&] { return !isHidingOverview(session.bus()); });
}

QString Mutter::awaitOutput(const char* pattern) const {
    QRegularExpressionMatch match;
    await("it had said its displays", [&] {
        match = QRegularExpression(QLatin1String(pattern)).match(QString::fromUtf8(output()));
        return match.hasMatch();
    });
    return match.captured(1);
}

void Mutter::tellXClients(double scale) {
    requireProgram(QStringLiteral("xrdb"), QStringLiteral("x11-xserver-utils"));
    constexpr double dotsPerInch = 96;
    mutableSession().writeFile(QStringLiteral("resources"),
                               "Xft.dpi: " + QByteArray::number(dotsPerInch * scale) + '\n');
    session().run(QStringLiteral("xrdb"), {QStringLiteral("-nocpp"), QStringLiteral("-merge"),
                                           session().file(QStringLiteral("resources"))});
}

void Mutter::wakeDevices() {
    constexpr int leftShift = 42;
    remote_->movePointerBy({0, 0});
    remote_->key(leftShift, Stroke::down);
    remote_->key(leftShift, Stroke::up);
}

Mutter::~Mutter() {
    remote_.reset();
    end();
}

QImage Mutter::screenshot(const QString& screen) const {
    return MutterPicture::take(session(), screen.isEmpty() ? screens().value(0).name : screen);
}

void Mutter::movePointerTo(QPointF place) {
    const auto pixel = pixelAt(place);
    remote_->movePointerTo(pixel.screen, pixel.place);
}

void Mutter::movePointerBy(QPointF distance) {
    remote_->movePointerBy(distance * layoutScale(MutterScreens(session()).all().first()));
}

void Mutter::button(int code, Stroke stroke) {
    remote_->button(code, stroke);
}

void Mutter::key(int code, Stroke stroke) {
    remote_->key(code, stroke);
}

QList<CompositorScreen> Mutter::screens() const {
    QList<CompositorScreen> screens;
    for (const auto& screen : MutterScreens(session()).all())
        screens.append({screen.name, geometry(screen)});
    return screens;
}

void Mutter::setScale(double scale) {
    MutterScreens screens(session());
    auto all = screens.all();
    all.first().scale = scale;
    screens.apply(all);
}

double Mutter::layoutScale(const MutterScreen& screen) const {
    return isLayoutInPixels_ ? screen.scale : 1;
}

QRect Mutter::geometry(const MutterScreen& screen) const {
    return {(QPointF(screen.position) / layoutScale(screen)).toPoint(),
            (QSizeF(screen.pixels) / screen.scale).toSize()};
}

Mutter::Pixel Mutter::pixelAt(QPointF place) const {
    for (const auto& screen : MutterScreens(session()).all())
        if (QRectF(geometry(screen)).contains(place))
            return {screen.name, (place - geometry(screen).topLeft()) * screen.scale};
    throw DesktopFailure(QStringLiteral("the place is on no screen"));
}

} // namespace brellowind::test
