#pragma once

#include "platform/MainLoop.h"
#include "platform/WindowSystem.h"

#include <QGuiApplication>
#include <memory>

namespace brellowind::platform {

class ScreenLock;

/// Makes the Qt application on a window system that the program can show the pill on. Where the
/// environment asks Qt for another one, that is not heeded, nor changed. Null, and one line on
/// standard error, when the session has no such window system. What `argv` points to outlives the
/// application.
std::unique_ptr<QGuiApplication> makeGuiApplication(int argc, char** argv);

/// The window system of the application that was made by `makeGuiApplication`, which outlives it
/// like both arguments.
std::unique_ptr<WindowSystem> makeWindowSystem(MainLoop& mainLoop, ScreenLock& screenLock);

} // namespace brellowind::platform
