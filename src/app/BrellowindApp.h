#pragma once

#include "platform/ProductConstants.h"

#include <memory>

class QGuiApplication;

namespace brellowind {

class NotchView;
class NotchRootView;

/// The application: the services of this machine, and what is built on them. A `QGuiApplication`
/// must live longer.
class BrellowindApp {
public:
    /// Prepares for and makes the Qt application. Null, and one line on standard error, when there
    /// is nothing to show the pill on. What `argv` points to outlives the application.
    static std::unique_ptr<QGuiApplication> makeApplication(int argc, char** argv);

    /// What Qt wants to be told before its application object exists, for those who make their own.
    static void prepare();

    explicit BrellowindApp(const platform::ProductConstants& constants);
    BrellowindApp(const BrellowindApp&) = delete;
    BrellowindApp& operator=(const BrellowindApp&) = delete;
    ~BrellowindApp();

    /// False when this program runs already for this user in this session: that one has been asked
    /// to show its settings window, and this one should end.
    bool claimDisplay();

    /// Creates the notch window and shows it. Called once.
    void launch();

    NotchRootView& rootView();
    NotchView& window(); ///< there once launched

private:
    struct Machine;
    std::unique_ptr<Machine> machine_;
};

} // namespace brellowind
