// SPDX-License-Identifier: MIT

#include "platform/linux/machine/SessionWindowSystem.h"

#include "platform/linux/machine/DisplayLoss.h"
#include "platform/linux/wayland/WaylandDisplay.h"
#include "platform/linux/wayland/WaylandWindowSystem.h"
#include "platform/linux/x11/PlainX11Input.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11Display.h"
#include "platform/linux/x11/X11WindowSystem.h"
#include "platform/linux/x11/XWaylandInput.h"

#include <cstdio>
#include <qpa/qplatformintegrationfactory_p.h>

namespace brellowind::platform {
namespace {

const QLatin1String wayland("wayland"); ///< Qt's platform name

} // namespace

std::unique_ptr<QGuiApplication> makeGuiApplication(int& argc, char** argv) {
    silenceQt();
    const bool hasWayland =
        offersLayerShell() && QPlatformIntegrationFactory::keys().contains(wayland);
    // Kept until Qt has connected: some servers reset when their last client disconnects.
    const auto display = openX11Display();
    if (!hasWayland && !display) {
        std::fputs("brellowind: there is neither a Wayland compositor with a layer shell nor an X "
                   "display to show the pill on\n",
                   stderr);
        return nullptr;
    }
    qputenv("QT_QPA_PLATFORM", !hasWayland ? "xcb" : display ? "wayland;xcb" : "wayland");
    return std::make_unique<QGuiApplication>(argc, argv);
}

std::unique_ptr<WindowSystem> makeWindowSystem(MainLoop& mainLoop, ScreenLock& screenLock) {
    if (QGuiApplication::platformName() == wayland) {
        auto system = std::make_unique<WaylandWindowSystem>(mainLoop);
        endWithDisplay(system->socket());
        return system;
    }
    endWithDisplay(xcb_get_file_descriptor(X11Connection().get()));
    std::unique_ptr<X11Input> input;
    if (isXWayland())
        input = std::make_unique<XWaylandInput>(mainLoop, QDBusConnection::sessionBus());
    else
        input = std::make_unique<PlainX11Input>(mainLoop);
    return std::make_unique<X11WindowSystem>(mainLoop, screenLock, std::move(input));
}

} // namespace brellowind::platform
