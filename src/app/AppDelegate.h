#pragma once

#include <memory>

class QQuickWindow;

namespace brellowind {

class NotchRootView;
class NotchQuickView;

/// Creates the one notch window when launching has finished.
class AppDelegate {
public:
    AppDelegate();
    ~AppDelegate();

    void applicationDidFinishLaunching();

    NotchRootView& rootView() { return *rootView_; }
    QQuickWindow& window();

private:
    std::unique_ptr<NotchRootView> rootView_;
    std::unique_ptr<NotchQuickView> notchWindow_;
};

} // namespace brellowind
