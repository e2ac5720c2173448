// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"
#include "settings/SettingsOpener.h"

#include <memory>

class QQuickWindow;

namespace brellowind {

/// The settings window. Created when it is opened; freed, with all its memory, when it is closed. A
/// `QGuiApplication` and all objects in `services` must outlive it. Closing it ends the program
/// unless `QGuiApplication::quitOnLastWindowClosed` is off.
class SettingsWindow : public SettingsOpener {
public:
    explicit SettingsWindow(const SettingsServices& services);
    ~SettingsWindow() override;

    void open() override;

    /// Null while the window is not open.
    QQuickWindow* window() const;

private:
    struct Content;

    void build();
    void closed();

    SettingsServices services_;
    std::unique_ptr<Content> content_;
    std::unique_ptr<platform::Timer> release_; ///< pending after closing
};

} // namespace brellowind
