// SPDX-License-Identifier: MIT

#include "platform/Machine.h"
#include "platform/macos/ScriptPlayer.h"
#include "platform/macos/appkit/AppKitOverlay.h"
#include "platform/macos/appkit/AppKitPointer.h"
#include "platform/macos/appkit/AppKitScreens.h"
#include "platform/macos/appkit/AppleScripts.h"
#include "platform/macos/appkit/Program.h"
#include "platform/macos/appkit/SecondStart.h"
#include "platform/macos/appkit/ServiceLoginItem.h"
#include "platform/macos/appkit/SystemLog.h"
#include "platform/macos/appkit/WorkspaceLinks.h"
#include "platform/macos/window/MacWindowSystem.h"
#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtImageDecoder.h"
#include "platform/qt/QtLocalFiles.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/unix/UnixSignals.h"

#include <QGuiApplication>
#include <cstdio>
#include <optional>
#include <utility>

namespace brellowind::platform {
namespace {

/// Destroyed from the bottom up.
class MacMachine final : public Machine {
public:
    MacMachine(int& argc, char** argv) : guiApplication_(argc, argv) {
        Program::becomeAccessory();
        QGuiApplication::setApplicationName(QStringLiteral("Brellowind"));
        QGuiApplication::setQuitOnLastWindowClosed(false);
    }

    MainLoop& mainLoop() override { return mainLoop_; }
    Log& log() override { return log_; }
    HttpClient& http() override { return http_; }
    ImageDecoder& images() override { return images_; }
    LocalFiles& files() override { return files_; }
    Player& player() override { return player_; }
    WindowSystem& windowSystem() override { return windowSystem_; }
    LinkOpener& links() override { return links_; }
    LoginItem& loginItem() override { return loginItem_; }

    bool claimSession(std::function<void()> onSecondStart) override {
        if (SecondStart::tellOther())
            return false;
        secondStart_.emplace(std::move(onSecondStart));
        return true;
    }

    int run() override { return QGuiApplication::exec(); }

private:
    QGuiApplication guiApplication_;
    QtMainLoop mainLoop_;
    SystemLog log_;
    QtHttpClient http_{mainLoop_};
    QtImageDecoder images_;
    QtLocalFiles files_;
    AppleScripts scripts_;
    ScriptPlayer player_{scripts_, mainLoop_, log_};
    AppKitScreens screens_;
    AppKitPointer pointer_;
    MacWindowSystem windowSystem_{{.screens = screens_,
                                   .pointer = pointer_,
                                   .makeOverlay = makeAppKitOverlay,
                                   .activateProgram = Program::activate}};
    WorkspaceLinks links_;
    ServiceLoginItem loginItem_;
    UnixSignals signals_{[this] { mainLoop_.quit(); }};
    std::optional<SecondStart> secondStart_;
};

} // namespace

std::unique_ptr<Machine> makeMachine(int& argc, char** argv,
                                     const ProductConstants& /*constants*/) {
    if (!Program::hasWindowServer()) {
        std::fputs("brellowind: this session has no window server to show the pill on\n", stderr);
        return nullptr;
    }
    qputenv("QT_QPA_PLATFORM", "cocoa"); // whose windows are AppKit's
    // Otherwise Qt activates the program at its start, and so takes the keyboard at every login.
    qputenv("QT_MAC_DISABLE_FOREGROUND_APPLICATION_TRANSFORM", "1");
    return std::make_unique<MacMachine>(argc, argv);
}

} // namespace brellowind::platform
