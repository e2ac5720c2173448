#pragma once

#include "platform/MainLoop.h"
#include "settings/SettingsOpener.h"

#include <memory>

class QQuickWindow;

namespace brellowind {

/// The program's only ordinary window. It is built when it is opened and given back, with all its
/// memory, when it closes. A `QGuiApplication` and what the services refer to must outlive it;
/// closing it ends the program unless `QGuiApplication::quitOnLastWindowClosed` is off.
class SettingsWindow : public SettingsOpener {
public:
    explicit SettingsWindow(const SettingsServices& services);
    ~SettingsWindow() override;

    void open() override;

    /// The window while there is one: null before it is first opened and after it closed.
    QQuickWindow* window() const;

private:
    struct Content;

    void build();
    void closed();

    SettingsServices services_;
    std::unique_ptr<Content> content_;
    std::unique_ptr<platform::Timer> release_; ///< there between closing and giving back
};

} // namespace brellowind
