// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"
#include "platform/WindowSystem.h"

#include <QGuiApplication>
#include <memory>

namespace brellowind::platform {

class ScreenLock;

/// Makes the Qt application on a window system that supports the pill, which replaces the value of
/// QT_QPA_PLATFORM. Returns null, after one line on standard error, if the session has no such
/// window system. Call while the process has one thread. The arguments must outlive the
/// application.
std::unique_ptr<QGuiApplication> makeGuiApplication(int& argc, char** argv);

/// The window system of the application made by `makeGuiApplication`. The application and both
/// arguments must outlive it.
std::unique_ptr<WindowSystem> makeWindowSystem(MainLoop& mainLoop, ScreenLock& screenLock);

} // namespace brellowind::platform
