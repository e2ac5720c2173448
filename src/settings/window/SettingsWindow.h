#pragma once

#include "platform/MainLoop.h"

#include <memory>

class QQuickWindow;

namespace brellowind {

/// The program's only ordinary window. It is built when it is opened and given back, with all its
/// memory, when it closes. A `QGuiApplication` and the platform's services must outlive it; closing
/// it ends the program unless `QGuiApplication::quitOnLastWindowClosed` is off.
class SettingsWindow {
public:
    SettingsWindow();
    SettingsWindow(const SettingsWindow&) = delete;
    SettingsWindow& operator=(const SettingsWindow&) = delete;
    ~SettingsWindow();

    /// Shows the window on the router's tab and brings it to the front, also when it is open.
    void open();

    /// The window while there is one: null before it is first opened and after it closed.
    QQuickWindow* window() const;

private:
    struct Content;

    void build();
    void closed();

    std::unique_ptr<Content> content_;
    std::unique_ptr<platform::Timer> release_; ///< there between closing and giving back
};

} // namespace brellowind
