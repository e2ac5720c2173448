#pragma once

#include "platform/ProductConstants.h"

#include <QProcessEnvironment>
#include <memory>

namespace brellowind {

class NotchView;
class NotchRootView;

/// The application: the services of this machine, and what is built on them. A `QGuiApplication`
/// must live longer.
class BrellowindApp {
public:
    /// What Qt wants to be told before its application object exists. Returns the environment as it
    /// was before.
    static QProcessEnvironment prepare();

    /// `environment` is for the programs that this one starts.
    BrellowindApp(const platform::ProductConstants& constants, QProcessEnvironment environment);
    BrellowindApp(const BrellowindApp&) = delete;
    BrellowindApp& operator=(const BrellowindApp&) = delete;
    ~BrellowindApp();

    /// False when this program runs already for this user on this display: that one has been asked
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
