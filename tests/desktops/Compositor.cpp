// SPDX-License-Identifier: MIT

#include "desktops/Compositor.h"

#include "desktops/KWin.h"
#include "desktops/Mutter.h"
#include "desktops/Sway.h"
#include "desktops/WaylandConnection.h"
#include "session/EventLoop.h"
#include "session/SendSignal.h"

#include <QFile>
#include <csignal>

namespace brellowind::test {
namespace {

const auto logName = QStringLiteral("compositor.log");
const auto displaysName = QStringLiteral("displays");

} // namespace

std::unique_ptr<Compositor> Compositor::make(const QString& name,
                                             const CompositorOptions& options) {
    if (name == QLatin1String("sway"))
        return std::make_unique<Sway>(options);
    if (name == QLatin1String("kwin"))
        return std::make_unique<KWin>(options);
    if (name == QLatin1String("mutter"))
        return std::make_unique<Mutter>(Mutter::Program::mutter, options);
    if (name == QLatin1String("gnome-shell"))
        return std::make_unique<Mutter>(Mutter::Program::gnomeShell, options);
    throw DesktopFailure(QStringLiteral("there is no compositor \"%1\"").arg(name));
}

Compositor::~Compositor() = default;

QString Compositor::socket() const {
    return session_.file(session_.environment().value(QStringLiteral("WAYLAND_DISPLAY")));
}

void Compositor::kill() {
    sendSignal(SIGKILL, *process_);
    if (!waitUntil([this] { return !isRunning(); }))
        throw DesktopFailure(QStringLiteral("the compositor did not end"));
}

void Compositor::click(QPointF place, int code) {
    movePointerTo(place);
    button(code, Stroke::down);
    button(code, Stroke::up);
}

void Compositor::type(int code) {
    key(code, Stroke::down);
    key(code, Stroke::up);
}

bool Compositor::tap(QPointF) {
    return false;
}

bool Compositor::setScreensOn(bool) {
    return false;
}

QString Compositor::addScreen() {
    return {};
}

bool Compositor::removeScreen(const QString&) {
    return false;
}

void Compositor::launch(const QString& program, const QStringList& arguments) {
    process_ = session_.start(program, arguments, logName);
}

QStringList Compositor::displayTeller() const {
    return {QStringLiteral(BRELLOWIND_DESKTOP_DISPLAYS), session_.file(displaysName)};
}

QString Compositor::displayTellerCommand() const {
    return QLatin1Char('\'') + displayTeller().join(QLatin1String("' '")) + QLatin1Char('\'');
}

void Compositor::awaitDisplays() {
    QFile told(session_.file(displaysName));
    await("it was ready", [&] { return told.open(QIODevice::ReadOnly); });
    for (const auto& line : QString::fromUtf8(told.readAll()).trimmed().split(QLatin1Char('\n')))
        session_.setVariable(line.section(QLatin1Char('='), 0, 0),
                             line.section(QLatin1Char('='), 1));
}

void Compositor::awaitDevices() const {
    static constexpr wl_seat_listener listener{
        [](void* data, wl_seat*, std::uint32_t all) { *static_cast<std::uint32_t*>(data) = all; },
        [](void*, wl_seat*, const char*) {}};
    constexpr std::uint32_t wanted = WL_SEAT_CAPABILITY_POINTER | WL_SEAT_CAPABILITY_KEYBOARD;
    std::uint32_t capabilities = 0;
    const WaylandConnection connection(QFile::encodeName(socket()).constData());
    wl_seat_add_listener(connection.bind<wl_seat>(wl_seat_interface, 1), &listener, &capabilities);
    await("it had a pointer and a keyboard", [&] {
        connection.finish();
        return (capabilities & wanted) == wanted;
    });
}

void Compositor::await(const char* what, const std::function<bool()>& condition) const {
    bool holds = false;
    waitUntil([&] { return (holds = condition()) || !isRunning(); });
    if (holds)
        return;
    throw DesktopFailure(
        QStringLiteral("the compositor %1 before %2. It said:\n%3")
            .arg(isRunning() ? QStringLiteral("took too long") : QStringLiteral("ended"),
                 QString::fromLatin1(what), QString::fromUtf8(output().right(4000))));
}

QByteArray Compositor::output() const {
    QFile log(session_.file(logName));
    return log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
}

void Compositor::end() {
    process_.reset();
}

} // namespace brellowind::test
