// SPDX-License-Identifier: MIT

#include "platform/Machine.h"
#include "platform/linux/MprisPlayer.h"
#include "platform/linux/ScreenLock.h"
#include "platform/linux/SingleInstance.h"
#include "platform/linux/XdgLinkOpener.h"
#include "platform/linux/XdgLoginItem.h"
#include "platform/linux/machine/DisplayLoss.h"
#include "platform/linux/machine/SessionWindowSystem.h"
#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtImageDecoder.h"
#include "platform/qt/QtLocalFiles.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QtStartEnvironment.h"
#include "platform/unix/StderrLog.h"
#include "platform/unix/UnixSignals.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QStandardPaths>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <optional>
#include <utility>

namespace brellowind::platform {
namespace {

XdgLoginItem makeLoginItem() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return {folder.toStdString(), QCoreApplication::applicationFilePath().toStdString(),
            qEnvironmentVariable("PATH").toStdString()};
}

/// Members are destroyed in reverse order.
class LinuxMachine final : public Machine {
public:
    /// `environment` is that of started programs.
    LinuxMachine(std::unique_ptr<QGuiApplication> guiApplication, const ProductConstants& constants,
                 QProcessEnvironment environment)
        : guiApplication_(std::move(guiApplication)),
          player_(QDBusConnection::sessionBus(), constants.mprisPlayers, mainLoop_, log_),
          links_(std::move(environment)) {
        QGuiApplication::setApplicationName(QStringLiteral("Brellowind"));
        // The desktop uses it to find the settings window's icon.
        QGuiApplication::setDesktopFileName(QStringLiteral("org.brellowind.Brellowind"));
        QGuiApplication::setQuitOnLastWindowClosed(false);
    }

    ~LinuxMachine() override { ignoreDisplay(); }

    MainLoop& mainLoop() override { return mainLoop_; }
    Log& log() override { return log_; }
    HttpClient& http() override { return http_; }
    ImageDecoder& images() override { return images_; }
    LocalFiles& files() override { return files_; }
    Player& player() override { return player_; }
    WindowSystem& windowSystem() override { return *windowSystem_; }
    LinkOpener& links() override { return links_; }
    LoginItem& loginItem() override { return loginItem_; }

    bool claimSession(std::function<void()> onSecondStart) override {
        instance_.emplace(
            QDBusConnection::sessionBus(), windowSystem_->sessionName(),
            [this, onSecondStart = std::move(onSecondStart)](const std::string& token) {
                windowSystem_->adoptActivation(token);
                onSecondStart();
            });
        return instance_->claim();
    }

    int run() override { return QGuiApplication::exec(); }

private:
    std::unique_ptr<QGuiApplication> guiApplication_;
    QtMainLoop mainLoop_;
    StderrLog log_;
    QtHttpClient http_{mainLoop_};
    QtImageDecoder images_;
    QtLocalFiles files_;
    MprisPlayer player_;
    ScreenLock screenLock_{QDBusConnection::sessionBus(), QDBusConnection::systemBus()};
    std::unique_ptr<WindowSystem> windowSystem_ = makeWindowSystem(mainLoop_, screenLock_);
    XdgLinkOpener links_;
    XdgLoginItem loginItem_ = makeLoginItem();
    UnixSignals signals_{[this] { mainLoop_.quit(); }};
    std::optional<SingleInstance> instance_;
};

} // namespace

std::unique_ptr<Machine> makeMachine(int& argc, char** argv, const ProductConstants& constants) {
#ifdef __GLIBC__
    // Other threads allocate too little to need arenas of their own.
    mallopt(M_ARENA_MAX, 1);
    // A fixed threshold returns large blocks, such as covers, to the system when they are freed.
    // By default it grows to the size of the largest freed block.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
    auto environment = QtStartEnvironment::choose();
    auto application = makeGuiApplication(argc, argv);
    if (!application)
        return nullptr;
    return std::make_unique<LinuxMachine>(std::move(application), constants,
                                          std::move(environment));
}

} // namespace brellowind::platform
