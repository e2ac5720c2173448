#include "platform/linux/machine/SessionWindowSystem.h"

#include "platform/linux/x11/X11Display.h"
#include "platform/linux/x11/X11WindowSystem.h"

#include <array>
#include <cstdio>
#include <vector>

namespace brellowind::platform {
namespace {

/// The command line of a Qt application. Qt keeps references into it.
class Arguments {
protected:
    Arguments(int argc, char** argv) : values_(argv, argv + argc) {
        for (auto& option : platform_)
            values_.push_back(option.data());
        count_ = static_cast<int>(values_.size());
        values_.push_back(nullptr);
    }

    int count_ = 0;
    std::vector<char*> values_;

private:
    std::array<std::string, 2> platform_{"-platform", "xcb"};
};

class Application final : private Arguments, public QGuiApplication {
public:
    Application(int argc, char** argv)
        : Arguments(argc, argv), QGuiApplication(count_, values_.data()) {}
};

} // namespace

std::unique_ptr<QGuiApplication> makeGuiApplication(int argc, char** argv) {
    // Held until Qt has connected: some servers reset themselves when their only client goes.
    const auto display = openX11Display();
    if (!display) {
        std::fputs("brellowind: there is no X display to show the pill on\n", stderr);
        return nullptr;
    }
    return std::make_unique<Application>(argc, argv);
}

std::unique_ptr<WindowSystem> makeWindowSystem(MainLoop& mainLoop, ScreenLock& screenLock) {
    return std::make_unique<X11WindowSystem>(mainLoop, screenLock);
}

} // namespace brellowind::platform
